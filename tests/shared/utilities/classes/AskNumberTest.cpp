// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/AskNumber.h"

#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScreen>

namespace {

class AskNumberTest : public testing::Test {
protected:
    QPointer<AskNumber> open(const QString& userText, QWidget* window) {
        return AskNumber::AskNumberWithMessage(u"&Offset && more:"_s, u"For example: 0"_s, userText, window,
                                               [this](const QString& answer, AskNumber* dialog) {
                                                   outcomes_.append({answer, dialog->ok(), dialog->refCon()});
                                                   EXPECT_TRUE(dialog->window()->isVisible());
                                               });
    }

    QWidget panel_;
    QList<std::tuple<QString, bool, int>> outcomes_;
};

} // namespace

TEST_F(AskNumberTest, ASheetAnswersAfterTheCallAndEndsItself) {
    const QRect screen = panel_.screen()->availableGeometry();
    panel_.setGeometry(screen.right() - 20, screen.top() + 50, 40, 100);
    panel_.show();
    const auto dialog = open(u"1.5"_s, &panel_);
    ASSERT_NE(dialog, nullptr);
    QDialog* window = dialog->window();
    EXPECT_LE(window->x() + window->width(), screen.right() + 1);
    panel_.move(screen.left() - 20, screen.top());
    EXPECT_EQ(window->x(), screen.left()) << "it goes along, on the screen";
    dialog->setRefCon(2);
    EXPECT_EQ(window->windowModality(), Qt::WindowModal);
    auto* field = window->findChild<QLineEdit*>();
    EXPECT_EQ(window->focusWidget(), field);
    EXPECT_EQ(field->selectedText(), u"1.5");
    EXPECT_EQ(field->accessibleName(), u"Offset & more:");
    for (const QString& text : {QString(), u"+"_s, u"+1.5"_s}) { // nothing is no answer
        EXPECT_TRUE(outcomes_.isEmpty() && window->isVisible());
        field->setText(text);
        press(field, Qt::Key_Return);
    }
    EXPECT_EQ(outcomes_.value(0), std::tuple(u"1.5"_s, true, 2));
    EXPECT_FALSE(window->isVisible());
    deletePending();
    EXPECT_EQ(dialog, nullptr);
    EXPECT_EQ(AskNumber::acceptedAnswer(u"++2"_s), u"+2");
}

TEST_F(AskNumberTest, EscapeAndTheCloseButtonCancel) {
    for (const bool closes : {true, false}) {
        const auto dialog = open(u"1.5"_s, &panel_);
        closes ? (void)dialog->window()->close()
               : press(dialog->window()->findChild<QLineEdit*>(), Qt::Key_Escape);
        deletePending();
        EXPECT_EQ(dialog, nullptr);
    }
    const std::tuple cancelled(u"1.5"_s, false, 0);
    EXPECT_EQ(outcomes_, (QList{cancelled, cancelled}));
}
