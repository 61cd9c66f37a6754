// SPDX-License-Identifier: MIT
#include "shared/utilities/classes/AskNumber.h"

#include "tests/Interaction.h"
#include "tests/TestMain.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

struct Outcome {
    QString answer;
    bool ok;
    int refCon;
    bool stillOpen;
    auto operator<=>(const Outcome&) const = default;
};

class AskNumberTest : public testing::Test {
protected:
    AskNumber* open(const QString& userText, QWidget* window) {
        return AskNumber::AskNumberWithMessage(
            QStringLiteral("&Offset && more:"), QStringLiteral("For example: 0"), userText, window,
            [this](const QString& answer, AskNumber* dialog) {
                outcomes_.append({answer, dialog->ok(), dialog->refCon(), dialog->window()->isVisible()});
            });
    }

    static QLineEdit* field(const AskNumber* dialog) { return dialog->window()->findChild<QLineEdit*>(); }

    static void answer(const AskNumber* dialog, const char* text) {
        field(dialog)->setText(QLatin1String(text));
        press(field(dialog), Qt::Key_Return);
    }

    static void deletePending() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    QWidget panel_;
    QList<Outcome> outcomes_;
};

} // namespace

TEST_F(AskNumberTest, AcceptsWhatIsLeftWithoutOneLeadingPlus) {
    using Answer = std::optional<QString>;
    const auto accepted = [](const char* text) { return AskNumber::acceptedAnswer(QLatin1String(text)); };
    EXPECT_EQ(accepted(""), Answer());
    EXPECT_EQ(accepted("+"), Answer());
    EXPECT_EQ(accepted("+2"), Answer(QStringLiteral("2")));
    EXPECT_EQ(accepted("++2"), Answer(QStringLiteral("+2")));
    EXPECT_EQ(accepted(" +abc"), Answer(QStringLiteral(" +abc")));
}

TEST_F(AskNumberTest, ASheetAnswersAfterTheCallAndEndsItself) {
    const QRect screen = panel_.screen()->availableGeometry();
    panel_.setGeometry(screen.right() - 20, screen.top() + 50, 40, 100);
    panel_.show();
    const QPointer<AskNumber> dialog = open(QStringLiteral("1.5"), &panel_);
    ASSERT_NE(dialog, nullptr);
    EXPECT_LE(dialog->window()->x() + dialog->window()->width(), screen.right() + 1);
    panel_.move(screen.left() - 20, screen.top());
    EXPECT_EQ(dialog->window()->x(), screen.left()) << "it goes along, on the screen";
    dialog->setRefCon(2);
    EXPECT_TRUE(dialog->window()->isVisible());
    EXPECT_EQ(dialog->window()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(dialog->window()->parentWidget(), &panel_);
    EXPECT_EQ(dialog->window()->focusWidget(), field(dialog));
    EXPECT_EQ(field(dialog)->selectedText(), u"1.5");
    EXPECT_EQ(field(dialog)->accessibleName(), u"Offset & more:");

    answer(dialog, "+");
    EXPECT_TRUE(outcomes_.isEmpty());
    EXPECT_TRUE(dialog->window()->isVisible());
    answer(dialog, "+1.5");
    EXPECT_EQ(outcomes_, (QList<Outcome>{{QStringLiteral("1.5"), true, 2, true}}));
    EXPECT_FALSE(dialog->window()->isVisible());
    deletePending();
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(AskNumberTest, EscapeAndTheCloseButtonCancel) {
    const QPointer<AskNumber> first = open(QStringLiteral("+"), &panel_);
    press(field(first), Qt::Key_Escape);
    const QPointer<AskNumber> second = open(QStringLiteral("7"), &panel_);
    answer(second, "");
    second->window()->close();
    const QPointer<AskNumber> third = open(QStringLiteral("8"), &panel_);
    third->window()->findChild<QPushButton*>(QStringLiteral("cancelButton_"))->click();
    EXPECT_EQ(outcomes_, (QList<Outcome>{{QStringLiteral("+"), false, 0, true},
                                         {QString(), false, 0, true},
                                         {QStringLiteral("8"), false, 0, true}}));
    deletePending();
    EXPECT_TRUE(!first && !second && !third);
}

TEST_F(AskNumberTest, WithoutAWindowTheCallReturnsWithTheAnswer) {
    QTimer::singleShot(0, [this] {
        QWidget* const dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(dialog->windowModality(), Qt::ApplicationModal);
        EXPECT_TRUE(outcomes_.isEmpty());
        dialog->findChild<QPushButton*>(QStringLiteral("okButton_"))->click();
    });
    const QPointer<AskNumber> dialog = open(QStringLiteral("12"), nullptr);
    EXPECT_EQ(outcomes_, (QList<Outcome>{{QStringLiteral("12"), true, 0, true}}));
    ASSERT_NE(dialog, nullptr) << "the caller still reads it";
    EXPECT_EQ(dialog->defaultlUserText(), u"12");
    deletePending();
    EXPECT_EQ(dialog, nullptr);
}

TEST_F(AskNumberTest, ABrokenLayoutIsLoggedAndOpensNothing) {
    const QTemporaryDir folder;
    const WithEnvironment resources("LUMIVANE_RESOURCES", folder.path().toLocal8Bit());
    const CaughtLog log;
    EXPECT_EQ(open(QStringLiteral("1"), &panel_), nullptr);
    QFile layout(folder.filePath(QStringLiteral("AskNumber.ui")));
    ASSERT_TRUE(layout.open(QIODevice::WriteOnly));
    layout.write("<ui version=\"4.0\"><widget class=\"QDialog\" name=\"AskNumber\"/></ui>");
    layout.close();
    EXPECT_EQ(open(QStringLiteral("1"), &panel_), nullptr);
    ASSERT_EQ(log.lines().size(), 2);
    EXPECT_TRUE(log.lines().last().contains(u"message_")) << log.lines().last().toStdString();
    EXPECT_TRUE(outcomes_.isEmpty());
}
