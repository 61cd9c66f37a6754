// SPDX-License-Identifier: MIT
#include "shared/utilities/libraries/LoginItemsAE/LoginItemsAE.h"

#include "platform/carbon/Agents.h"
#include "platform/carbon/SystemEvents.h"
#include "tests/platform/carbon/TestAutostart.h"

namespace {

constexpr OSType code(const char (&text)[5]) {
    return fourCharCode(text);
}

AEDesc codeDesc(DescType type, OSType value) {
    AEDesc desc;
    AECreateDesc(type, &value, sizeof value, &desc);
    return desc;
}

AEDesc textDesc(const QString& text) {
    AEDesc desc;
    AECreateDesc(typeUnicodeText, text.utf16(), static_cast<std::size_t>(text.size()) * 2, &desc);
    return desc;
}

/// The fields of a record, in their order; the class, ID and parameters of an event.
QString described(const AEDesc& desc);

QString keyword(AEKeyword key) {
    const char characters[] = {static_cast<char>(key >> 24), static_cast<char>(key >> 16),
                               static_cast<char>(key >> 8), static_cast<char>(key)};
    return QString::fromLatin1(characters, 4);
}

QString describedBytes(const AEDesc& desc) {
    OSType value = 0;
    switch (desc.descriptorType) {
    case code("type"):
    case code("enum"):
    case code("abso"):
        std::memcpy(&value, desc.data.constData(), sizeof value);
        return keyword(value);
    case code("utxt"):
        return QString::fromUtf16(reinterpret_cast<const char16_t*>(desc.data.constData()),
                                  desc.data.size() / 2);
    default:
        return QString::fromLatin1(desc.data.toHex());
    }
}

QString described(const AEDesc& desc) {
    QStringList fields;
    for (const auto& item : desc.items)
        fields.append(keyword(item.keyword) + u':' + described(item.desc));
    const bool isBytes = desc.form == AEDesc::Form::bytes;
    return keyword(desc.descriptorType) +
           (isBytes ? u'(' + describedBytes(desc) + u')' : u'{' + fields.join(u", ") + u'}');
}

class LoginItemsAE : public TestAutostart {
protected:
    ~LoginItemsAE() override { Agents::install(kSystemEventsSignature, systemEventsAgent()); }

    /// Puts an agent in System Events' place that keeps what it is sent, then gives `status`, or its reply.
    void fake(OSStatus status = noErr, const AEDesc& directObject = {}) {
        Agents::install(kSystemEventsSignature, [=, this](const AppleEvent& event, AppleEvent* reply) {
            sent_.append(keyword(eventClassOf(event)) + u'/' + keyword(eventIDOf(event)) + u' ' +
                         described(event));
            events_.push_back(event);
            if (directObject.descriptorType != typeNull)
                AEPutParamDesc(reply, keyDirectObject, directObject);
            return status;
        });
    }

    /// The list, or its status.
    OSStatus list(QList<QVariantMap>* items) {
        std::unique_ptr<LoginItemsList> copied;
        const OSStatus err = LIAECopyLoginItems(&copied);
        EXPECT_EQ(err == noErr, copied != nullptr);
        if (copied)
            *items = *copied;
        return err;
    }

    QStringList sent_;
    std::vector<AppleEvent> events_;
};

AEDesc itemRecord(const QString& path, bool withHidden, std::uint8_t hidden = 0) {
    AEDesc record;
    AECreateList(true, &record);
    AEPutParamDesc(&record, code("ppth"), textDesc(path));
    if (withHidden)
        AEPutParamPtr(&record, code("hidn"), typeBoolean, &hidden, sizeof hidden);
    return record;
}

AEDesc listOf(std::initializer_list<AEDesc> items) {
    AEDesc list;
    AECreateList(false, &list);
    for (const AEDesc& item : items)
        AEPutDesc(&list, item);
    return list;
}

} // namespace

TEST_F(LoginItemsAE, SendsTheThreeEvents) {
    fake(noErr, listOf({}));
    QList<QVariantMap> items;
    EXPECT_EQ(list(&items), noErr);
    const QUrl url = QUrl::fromLocalFile(makeProgram(QStringLiteral("Möon \"1\" %f")));
    EXPECT_EQ(LIAEAddURLAtEnd(&url, true), noErr);
    EXPECT_EQ(LIAERemove(4), noErr);

    const QString path = url.toLocalFile();
    EXPECT_EQ(sent_.value(0), QStringLiteral("core/getd aevt{----:obj {want:type(prop), from:obj {"
                                             "want:type(logi), from:null(), form:enum(indx), "
                                             "seld:abso(all )}, form:enum(prop), seld:type(pALL)}}"));
    EXPECT_EQ(sent_.value(1),
              QStringLiteral("core/crel aevt{kocl:type(logi), prdt:reco{ppth:utxt(%1), hidn:bool(01)}, "
                             "insh:insl{kobj:null(), kpos:enum(end )}}")
                  .arg(path));
    EXPECT_EQ(sent_.value(2), QStringLiteral("core/delo aevt{----:obj {want:type(logi), from:null(), "
                                             "form:enum(indx), seld:long(05000000)}}"));
    EXPECT_EQ(sent_.size(), 3);

    AEDesc target;
    ASSERT_EQ(AEGetAttributeDesc(events_[0], keyAddressAttr, typeProcessSerialNumber, &target), noErr);
    EXPECT_EQ(target.data.size(), 8);
    AEDesc first;
    AEDesc second;
    AEGetAttributeDesc(events_[0], keyReturnIDAttr, typeSInt16, &first);
    AEGetAttributeDesc(events_[1], keyReturnIDAttr, typeSInt16, &second);
    EXPECT_NE(first, second) << "return IDs are generated";
}

TEST_F(LoginItemsAE, ReadsTheReply) {
    const QString gone = QStringLiteral("/nowhere/it was #1");
    fake(noErr, listOf({itemRecord(gone, true, 1), itemRecord(QStringLiteral("/usr/bin/env"), false)}));
    QList<QVariantMap> items;
    ASSERT_EQ(list(&items), noErr);
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].value(QStringLiteral("URL")).toUrl().toLocalFile(), gone);
    EXPECT_EQ(items[0].value(QStringLiteral("Hidden")), true);
    EXPECT_EQ(items[1].value(QStringLiteral("URL")).toUrl(),
              QUrl::fromLocalFile(QStringLiteral("/usr/bin/env")));
    EXPECT_EQ(items[1].value(QStringLiteral("Hidden")), false);
    EXPECT_EQ(items[1].size(), 2);

    // A path longer than the buffer is cut, not written past it.
    fake(noErr, listOf({itemRecord(u'/' + QString(5000, u'x'), true)}));
    ASSERT_EQ(list(&items), noErr);
    EXPECT_EQ(items[0].value(QStringLiteral("URL")).toUrl().toLocalFile().size(), 1023);

    const struct {
        AEDesc directObject;
        OSStatus expected;
    } damaged[] = {
        {{}, errAEDescNotFound},
        {codeDesc(typeAEList, 7), errAECoercionFail},
        {listOf({codeDesc(typeType, 7)}), errAECoercionFail},
        {listOf({itemRecord(QString(), true)}), coreFoundationUnknownErr},
        {listOf({itemRecord(QString(QChar(0xD800)), true)}), errAECoercionFail},
    };
    for (const auto& [directObject, expected] : damaged) {
        fake(noErr, directObject);
        EXPECT_EQ(list(&items), expected);
    }
}

TEST_F(LoginItemsAE, GivesTheFirstFailingStepsStatus) {
    QList<QVariantMap> items;
    const QUrl url = QUrl::fromLocalFile(makeProgram(QStringLiteral("Moon")));
    for (const OSStatus status : {-34, -1728, -1708}) {
        fake(status, listOf({}));
        EXPECT_EQ(list(&items), status);
        EXPECT_EQ(LIAEAddURLAtEnd(&url, false), status);
        EXPECT_EQ(LIAERemove(0), status);
    }
    fake(-100000); // no 16-bit number
    EXPECT_EQ(LIAERemove(0), errAECoercionFail);

    sent_.clear();
    const QUrl gone = QUrl::fromLocalFile(path(QStringLiteral("gone")));
    const QUrl page(QStringLiteral("https://example.org/"));
    EXPECT_EQ(LIAEAddURLAtEnd(&gone, false), fnfErr);
    EXPECT_EQ(LIAEAddURLAtEnd(&page, false), fnfErr);
    const FSRef longPath{'/' + QByteArray(1023, 'x')};
    EXPECT_EQ(LIAEAddRefAtEnd(&longPath, false), pathTooLongErr);
    const FSRef noText{"/\xFF"};
    EXPECT_EQ(LIAEAddRefAtEnd(&noText, false), errAECoercionFail);
    EXPECT_TRUE(sent_.isEmpty());

    Agents::install(kSystemEventsSignature, nullptr);
    EXPECT_EQ(list(&items), kLSApplicationNotFoundErr);
}

TEST_F(LoginItemsAE, LaunchesSystemEventsOnce) {
    Agents::install(kSystemEventsSignature, systemEventsAgent());
    const auto countOfAgents = [] {
        int count = 0;
        ProcessInfoRec information;
        ProcessSerialNumber process = kNoProcess;
        OSStatus err = GetNextProcess(&process);
        for (; err == noErr; err = GetNextProcess(&process)) {
            EXPECT_EQ(GetProcessInformation(process, &information), noErr);
            count += information.processSignature == kSystemEventsSignature;
        }
        EXPECT_EQ(err, procNotFound);
        return count;
    };
    EXPECT_EQ(countOfAgents(), 0);
    QList<QVariantMap> items;
    EXPECT_EQ(list(&items), noErr);
    EXPECT_EQ(countOfAgents(), 1);
    EXPECT_EQ(list(&items), noErr);
    EXPECT_EQ(countOfAgents(), 1);
    EXPECT_TRUE(items.isEmpty());
}

TEST_F(LoginItemsAE, ListAppendAndRemoveAreWhatTheFolderHolds) {
    Agents::install(kSystemEventsSignature, systemEventsAgent());
    const QByteArray foreign = "[Desktop Entry]\nType=Application\nExec=/usr/bin/env -i\nName=Env\n";
    writeEntry(QStringLiteral("zz.desktop"), foreign);
    const QUrl first = QUrl::fromLocalFile(makeProgram(QStringLiteral("b first")));
    const QUrl second = QUrl::fromLocalFile(makeProgram(QStringLiteral("a second")));
    EXPECT_EQ(LIAEAddURLAtEnd(&first, false), noErr);
    EXPECT_EQ(LIAEAddURLAtEnd(&second, true), noErr);

    QList<QVariantMap> items;
    ASSERT_EQ(list(&items), noErr);
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[0].value(QStringLiteral("URL")).toUrl().toLocalFile(), QStringLiteral("/usr/bin/env"));
    EXPECT_EQ(items[1], (QVariantMap{{QStringLiteral("URL"), first}, {QStringLiteral("Hidden"), false}}));
    EXPECT_EQ(items[2], (QVariantMap{{QStringLiteral("URL"), second}, {QStringLiteral("Hidden"), true}}));
    EXPECT_EQ(files().size(), 3);

    EXPECT_EQ(LIAERemove(1), noErr);
    EXPECT_EQ(files(), (QStringList{QStringLiteral("a_second.desktop"), QStringLiteral("zz.desktop")}));
    EXPECT_EQ(LIAERemove(2), errAEIllegalIndex);
    EXPECT_EQ(LIAERemove(std::numeric_limits<long>::max()), errAEIllegalIndex);
    EXPECT_EQ(read(entryPath(QStringLiteral("zz.desktop"))), foreign);

    // Between list and removal another program puts an entry first: positions mean what was shown.
    ASSERT_EQ(list(&items), noErr);
    writeEntry(QStringLiteral("aa.desktop"), foreign);
    EXPECT_EQ(LIAERemove(0), noErr);
    EXPECT_EQ(files(), (QStringList{QStringLiteral("a_second.desktop"), QStringLiteral("aa.desktop")}));
    ASSERT_EQ(list(&items), noErr);
    writeEntry(QStringLiteral("aa.desktop"), "[Desktop Entry]\nType=Application\nExec=/bin/other\n");
    EXPECT_EQ(LIAERemove(0), errAENoSuchObject);
    EXPECT_EQ(files().size(), 2);
}

TEST_F(LoginItemsAE, UnknownRequestsChangeNothing) {
    Agents::install(kSystemEventsSignature, systemEventsAgent());
    writeEntry(QStringLiteral("a.desktop"), "[Desktop Entry]\nType=Application\nExec=/usr/bin/env\n");
    ProcessSerialNumber process;
    ASSERT_EQ(LSOpenApplication({kLSLaunchDefaults, {kSystemEventsSignature}}, &process), noErr);
    AEDesc target;
    AECreateDesc(typeProcessSerialNumber, &process, sizeof process, &target);

    AEDesc everyItem;
    CreateObjSpecifier(code("logi"), {}, code("indx"), codeDesc(typeAbsoluteOrdinal, code("all ")),
                       &everyItem);
    AEDesc byName;
    CreateObjSpecifier(code("logi"), {}, code("name"), textDesc(QStringLiteral("a")), &byName);
    const AEDesc strange[] = {
        {}, everyItem, byName, listOf({}), codeDesc(typeSInt32, 1), codeDesc(typeObjectSpecifier, 1)};
    for (const OSType id : {code("getd"), code("crel"), code("delo"), code("quit")}) {
        for (const AEDesc& object : strange) {
            AppleEvent event;
            AECreateAppleEvent(code("core"), id, target, kAutoGenerateReturnID, kAnyTransactionID, &event);
            AEPutParamDesc(&event, keyDirectObject, object);
            AppleEvent reply;
            EXPECT_EQ(AESendMessage(event, &reply, kAEWaitReply, 300), noErr);
            std::int16_t number = 0;
            EXPECT_EQ(AEGetParamPtr(reply, keyErrorNumber, typeSInt16, &number, sizeof number, nullptr),
                      noErr);
            EXPECT_LT(number, 0);
        }
    }
    EXPECT_EQ(files(), QStringList{QStringLiteral("a.desktop")});
}

TEST(LoginItemsAEDeathTest, PreconditionsAreFatal) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_DEATH(LIAECopyLoginItems(nullptr), "LIAECopyLoginItems: LoginItemsAE: .*: itemsPtr != NULL");
    auto taken = std::make_unique<LoginItemsList>();
    EXPECT_DEATH(LIAECopyLoginItems(&taken), "LIAECopyLoginItems: LoginItemsAE: .*: \\*itemsPtr == NULL");
    EXPECT_DEATH(LIAEAddRefAtEnd(nullptr, false), "LIAEAddRefAtEnd: LoginItemsAE: .*: item != NULL");
    EXPECT_DEATH(LIAEAddURLAtEnd(nullptr, false), "LIAEAddURLAtEnd: LoginItemsAE: .*: item != NULL");
    EXPECT_DEATH(LIAERemove(-1), "LIAERemove: LoginItemsAE: .*: itemIndex >= 0");
}
