// SPDX-License-Identifier: MIT
#include "platform/carbon/SystemEvents.h"

#include "platform/carbon/AutostartFolder.h"
#include "platform/carbon/Files.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>

namespace {

constexpr OSType kCoreSuite = fourCharCode("core");
constexpr OSType kGetData = fourCharCode("getd");
constexpr OSType kCreateElement = fourCharCode("crel");
constexpr OSType kDelete = fourCharCode("delo");
constexpr OSType kLoginItem = fourCharCode("logi");
constexpr OSType kProperty = fourCharCode("prop");
constexpr OSType kAllProperties = fourCharCode("pALL");
constexpr OSType kAbsolutePosition = fourCharCode("indx");
constexpr OSType kAll = fourCharCode("all ");
constexpr OSType kEnd = fourCharCode("end ");
constexpr AEKeyword kPath = fourCharCode("ppth");
constexpr AEKeyword kHidden = fourCharCode("hidn");
constexpr AEKeyword kObjectClass = fourCharCode("kocl");
constexpr AEKeyword kProperties = fourCharCode("prdt");
constexpr AEKeyword kInsertHere = fourCharCode("insh");

template <typename Value>
std::optional<Value> valueOf(const AEDesc& record, AEKeyword keyword, DescType type) {
    Value value{};
    std::size_t size = 0;
    if (AEGetParamPtr(record, keyword, type, &value, sizeof value, &size) != noErr || size != sizeof value)
        return std::nullopt;
    return value;
}

bool holdsCode(const AEDesc& record, AEKeyword keyword, DescType type, OSType code) {
    return valueOf<OSType>(record, keyword, type) == code;
}

bool holdsNull(const AEDesc& record, AEKeyword keyword) {
    AEDesc desc;
    return AEGetParamDesc(record, keyword, typeWildCard, &desc) == noErr && desc.descriptorType == typeNull;
}

std::optional<AEDesc> part(const AEDesc& record, AEKeyword keyword, DescType type) {
    AEDesc desc;
    if (AEGetParamDesc(record, keyword, type, &desc) != noErr)
        return std::nullopt;
    return desc;
}

/// Whether a specifier asks for login items of the agent itself, by position.
bool namesLoginItem(const AEDesc& specifier) {
    return holdsCode(specifier, keyAEDesiredClass, typeType, kLoginItem) &&
           holdsNull(specifier, keyAEContainer) &&
           holdsCode(specifier, keyAEKeyForm, typeEnumerated, kAbsolutePosition);
}

bool asksForEveryLoginItem(const AppleEvent& event) {
    const auto properties = part(event, keyDirectObject, typeObjectSpecifier);
    if (!properties || !holdsCode(*properties, keyAEDesiredClass, typeType, kProperty) ||
        !holdsCode(*properties, keyAEKeyForm, typeEnumerated, kProperty) ||
        !holdsCode(*properties, keyAEKeyData, typeType, kAllProperties))
        return false;
    const auto items = part(*properties, keyAEContainer, typeObjectSpecifier);
    return items && namesLoginItem(*items) && holdsCode(*items, keyAEKeyData, typeAbsoluteOrdinal, kAll);
}

bool insertsAtEnd(const AppleEvent& event) {
    const auto place = part(event, kInsertHere, typeInsertionLoc);
    return place && holdsNull(*place, keyAEObject) && holdsCode(*place, keyAEPosition, typeEnumerated, kEnd);
}

std::optional<QString> textOf(const AEDesc& record, AEKeyword keyword) {
    const auto desc = part(record, keyword, typeUTF8Text);
    return desc ? std::optional(QString::fromUtf8(desc->data)) : std::nullopt;
}

AEDesc recordOf(const AutostartFolder::Item& item) {
    AEDesc record;
    AECreateList(true, &record);
    AEPutParamPtr(&record, kPath, typeUnicodeText, item.path.utf16(),
                  static_cast<std::size_t>(item.path.size()) * sizeof(char16_t));
    const std::uint8_t hidden = item.hidden ? 1 : 0;
    AEPutParamPtr(&record, kHidden, typeBoolean, &hidden, sizeof hidden);
    return record;
}

class SystemEvents {
public:
    OSStatus answer(const AppleEvent& event, AppleEvent* reply) {
        if (eventClassOf(event) != kCoreSuite)
            return errAEEventNotHandled;
        switch (eventIDOf(event)) {
        case kGetData:
            return getData(event, reply);
        case kCreateElement:
            return createElement(event);
        case kDelete:
            return deleteElement(event);
        default:
            return errAEEventNotHandled;
        }
    }

private:
    OSStatus getData(const AppleEvent& event, AppleEvent* reply) {
        if (!asksForEveryLoginItem(event))
            return errAENoSuchObject;
        shown_ = Shown{AutostartFolder::path(), AutostartFolder::items()};
        AEDesc list;
        AECreateList(false, &list);
        for (const auto& item : shown_->items)
            AEPutDesc(&list, recordOf(item));
        return AEPutParamDesc(reply, keyDirectObject, list);
    }

    OSStatus createElement(const AppleEvent& event) {
        const auto properties = part(event, kProperties, typeAERecord);
        if (!holdsCode(event, kObjectClass, typeType, kLoginItem) || !insertsAtEnd(event) || !properties)
            return errAENoSuchObject;
        const auto path = textOf(*properties, kPath);
        if (!path || !path->startsWith(u'/') || path->contains(QChar::Null))
            return paramErr;
        const bool hidden = valueOf<std::uint8_t>(*properties, kHidden, typeBoolean).value_or(0) != 0;
        const OSStatus err = AutostartFolder::append(*path, hidden);
        if (err == noErr && shown_)
            showAppended(*path);
        return err;
    }

    OSStatus deleteElement(const AppleEvent& event) {
        const auto specifier = part(event, keyDirectObject, typeObjectSpecifier);
        if (!specifier || !namesLoginItem(*specifier))
            return errAENoSuchObject;
        const auto position = valueOf<std::int32_t>(*specifier, keyAEKeyData, typeSInt32);
        const QList<AutostartFolder::Item> present = AutostartFolder::items();
        if (!shown_ || shown_->folder != AutostartFolder::path())
            shown_ = Shown{AutostartFolder::path(), present};
        if (!position || *position < 1 || *position > shown_->items.size())
            return errAEIllegalIndex;
        const AutostartFolder::Item item = shown_->items[*position - 1];
        if (!present.contains(item))
            return errAENoSuchObject;
        const OSStatus err = AutostartFolder::remove(item);
        if (err == noErr)
            shown_->items.removeAt(*position - 1);
        return err;
    }

    /// Keeps the shown list true to what this agent itself changed.
    void showAppended(const QString& path) {
        const QList<AutostartFolder::Item> present = AutostartFolder::items();
        if (present.isEmpty() || present.last().path != path)
            return;
        shown_->items.removeIf([&](const auto& item) { return item.file == present.last().file; });
        shown_->items.append(present.last());
    }

    /// Positions come from a list that the sender saw earlier; meanwhile other programs may have changed the
    /// folder.
    struct Shown {
        QString folder;
        QList<AutostartFolder::Item> items;
    };
    std::optional<Shown> shown_;
};

} // namespace

AEEventHandler systemEventsAgent() {
    return [agent = std::make_shared<SystemEvents>()](const AppleEvent& event, AppleEvent* reply) {
        return agent->answer(event, reply);
    };
}
