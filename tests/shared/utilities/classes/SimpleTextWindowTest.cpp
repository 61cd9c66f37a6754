// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/SimpleTextWindow.h"

#include "tests/FakeDesktop.h"

#include <QScreen>
#include <QTextBrowser>
#include <QTextDocument>

TEST(SimpleTextWindowTest, ShowsACopyOfTheTextWholeAndClosesWithAnyKeyForIt) {
    QWidget panel;
    for (const auto& [lines, key] : {std::pair{12, Qt::Key_Return}, {1200, Qt::Key_Escape}}) {
        auto text = std::make_unique<QTextDocument>();
        text->setHtml(u"<b>Lumivane</b><br>"_s.repeated(lines));
        const QString html = text->toHtml();
        const QPointer<SimpleTextWindow> dialog =
            SimpleTextWindow::simpleTextWindowFromAttributedString(*text, &panel);
        text.reset();
        ASSERT_NE(dialog, nullptr);
        const auto* view = dialog->window()->findChild<QTextBrowser*>();
        EXPECT_EQ(view->document()->toHtml(), html);
        EXPECT_EQ(view->viewport()->height() >= view->document()->size().height(), lines == 12);
        EXPECT_LE(dialog->window()->height(), dialog->window()->screen()->availableSize().height());
        press(dialog->window()->focusWidget(), key);
        EXPECT_FALSE(dialog->window()->isVisible());
        deletePending();
        EXPECT_EQ(dialog, nullptr);
    }
}

TEST(SimpleTextWindowTest, ALinkOpensInTheDefaultBrowser) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    QTextDocument text;
    text.setHtml(u"<a href=\"https://www.corvanta.example/a?b=c\">page</a>"_s);
    auto* dialog = SimpleTextWindow::freeTextWindowFromAttributedString(text);
    auto* view = dialog->window()->findChild<QTextBrowser*>();
    for (const auto key : {Qt::Key_Tab, Qt::Key_Return})
        press(view, key);
    EXPECT_EQ(desktop.starts("browser"), "--page https://www.corvanta.example/a?b=c");
    EXPECT_EQ(view->toPlainText(), u"page") << "the link leads out of the window";
    dialog->okPushed(nullptr);
}
