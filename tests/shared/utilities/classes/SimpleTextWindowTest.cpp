// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/SimpleTextWindow.h"

#include "tests/FakeDesktop.h"

#include <QApplication>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextDocument>

#include <gtest/gtest.h>

TEST(SimpleTextWindowTest, ShowsACopyOfTheTextAndClosesWithAnyKeyForIt) {
    QWidget panel;
    for (const int key : {int(Qt::Key_Return), int(Qt::Key_Escape)}) {
        auto text = std::make_unique<QTextDocument>();
        text->setHtml(QStringLiteral("<b>Lumivane</b> <a href=\"https://www.corvanta.example\">page</a>"));
        const QString html = text->toHtml();
        const QPointer<SimpleTextWindow> dialog =
            SimpleTextWindow::simpleTextWindowFromAttributedString(*text, &panel);
        text.reset();
        ASSERT_NE(dialog, nullptr);
        auto* view = dialog->window()->findChild<QTextBrowser*>();
        EXPECT_EQ(view->document()->toHtml(), html);
        press(dialog->window()->focusWidget(), key);
        EXPECT_FALSE(dialog->window()->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_EQ(dialog, nullptr);
    }
}

TEST(SimpleTextWindowTest, ALinkOpensInTheDefaultBrowser) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    QTextDocument text;
    text.setHtml(QStringLiteral("<a href=\"https://www.corvanta.example/a?b=c\">page</a>"));
    auto* dialog = SimpleTextWindow::freeTextWindowFromAttributedString(text);
    EXPECT_FALSE(dialog->window()->isModal());
    auto* view = dialog->window()->findChild<QTextBrowser*>();
    for (const int key : {int(Qt::Key_Tab), int(Qt::Key_Return)})
        press(view, key);
    EXPECT_EQ(desktop.starts("browser"), "--page https://www.corvanta.example/a?b=c");
    EXPECT_EQ(view->toPlainText(), u"page") << "the link leads out of the window";
    dialog->okPushed(nullptr);
}

TEST(SimpleTextWindowTest, AShortTextIsSeenWholeAndALongOneFitsTheScreen) {
    QWidget panel;
    QTextDocument text;
    QString lines = QStringLiteral("line\n").repeated(12);
    text.setPlainText(lines);
    const QPointer<SimpleTextWindow> shortText =
        SimpleTextWindow::simpleTextWindowFromAttributedString(text, &panel);
    const auto* view = shortText->window()->findChild<QTextBrowser*>();
    EXPECT_GE(view->viewport()->height(), view->document()->size().height());
    text.setPlainText(lines.repeated(100));
    const QPointer<SimpleTextWindow> longText =
        SimpleTextWindow::simpleTextWindowFromAttributedString(text, &panel);
    EXPECT_LE(longText->window()->height(), longText->window()->screen()->availableSize().height());
    shortText->okPushed(nullptr);
    longText->okPushed(nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}
