// SPDX-License-Identifier: MIT
#include "platform/desktop_entry/DesktopEntry.h"

#include <cstdint>
#include <cstdlib>

namespace {

void demand(bool holds) {
    if (!holds)
        std::abort();
}

std::optional<DesktopEntry> read(const QByteArray& bytes) {
    QString error;
    auto entry = DesktopEntry::fromBytes(bytes, &error);
    demand(entry.has_value() == error.isEmpty());
    return entry;
}

void readAsEntry(const QByteArray& bytes) {
    auto entry = read(bytes);
    if (!entry)
        return;
    entry->startsIn({QStringLiteral("XFCE")});
    entry->program();
    entry->setProgram(QStringLiteral("/bin/true"));
    DesktopEntry copy;
    for (const char* key : {"Type", "Name", "Icon", "Exec", "TryExec"})
        copy.copy(key, *entry);
    if (!entry->text("Exec").isEmpty())
        demand(read(copy.toBytes()).has_value());
}

/// Whatever a path holds, the entry that starts it reads back as that path, and as nothing more.
void writeAsPath(const QByteArray& bytes) {
    const QString path = u'/' + QString::fromUtf8(bytes).remove(QChar::Null);
    DesktopEntry entry;
    entry.setText("Exec", execFor(path));
    entry.setText("X-LoginItem-Path", path);
    const auto again = read(entry.toBytes());
    demand(again && again->text("X-LoginItem-Path") == path);
    demand(again->program() == path || path.contains(u'%')); // which `env` starts
    demand(again->toBytes() == entry.toBytes() && !again->flag("Hidden", false));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    readAsEntry(bytes);
    writeAsPath(bytes);
    return 0;
}
