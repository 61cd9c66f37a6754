// SPDX-License-Identifier: MIT
#include "platform/carbon/LaunchServices.h"

#include "tests/FakeDesktop.h"

namespace {

const QUrl kPage(QStringLiteral("http://a.example/%25u"));

TEST(LaunchServicesTest, OpensItemsWithAnApplicationOrTheSystemsChoice) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    const QString mail = desktop.entry(QStringLiteral("mail.desktop"));
    EXPECT_EQ(LSOpenFromURLSpec({QUrl::fromLocalFile(mail), {kPage}}), noErr);
    EXPECT_EQ(desktop.starts("mail"), "--page http://a.example/%25u");
    EXPECT_EQ(LSOpenFromURLSpec({QUrl(), {kPage}}), noErr);
    EXPECT_EQ(desktop.starts("browser"), "--page http://a.example/%25u");

    // The programs' folder has a name full of what command lines give a meaning to.
    const QString executable = desktop.program(QStringLiteral("viewer"));
    EXPECT_EQ(LSOpenFromURLSpec({QUrl::fromLocalFile(executable), {kPage}}), noErr);
    EXPECT_EQ(desktop.starts("viewer"), "http://a.example/%25u");
}

TEST(LaunchServicesTest, TellsWhyNothingOpened) {
    const FakeDesktop& desktop = FakeDesktop::shared();
    const auto application = [&](const char* identifier) {
        return QUrl::fromLocalFile(desktop.entry(QString::fromLatin1(identifier)));
    };
    const struct {
        QUrl application;
        QUrl item;
        OSStatus status;
    } cases[]{
        {QUrl(), QUrl(QStringLiteral("x-unknown:page")), kLSApplicationNotFoundErr},
        {QUrl(), QUrl(QStringLiteral("file:///nowhere")), fnfErr},
        {QUrl(), QUrl(QStringLiteral("-option")), paramErr},
        {QUrl(), QUrl(), paramErr},
        {application("nowhere.desktop"), kPage, fnfErr},
        {application("gone.desktop"), kPage, kLSNotAnApplicationErr},
        {kPage, kPage, fnfErr},
    };
    for (const auto& [app, item, status] : cases)
        EXPECT_EQ(LSOpenFromURLSpec({app, {item}}), status) << item.toString().toStdString();
}

} // namespace
