// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

struct _GKeyFile; // NOLINT(bugprone-reserved-identifier): GLib's own name

/// The "Desktop Entry" group of a desktop entry file, as the Desktop Entry Specification of freedesktop.org
/// has it. Backed by GKeyFile.
class DesktopEntry {
public:
    DesktopEntry();

    /// Nothing, and the reason in `error`, for what is no desktop entry. A file must be a regular one of at
    /// most 256 KiB.
    static std::optional<DesktopEntry> fromBytes(const QByteArray& bytes, QString* error);
    static std::optional<DesktopEntry> fromFile(const QString& path, QString* error);

    /// Values as the file means them, freed of its escapes; without a sound one an empty text, or
    /// `otherwise`.
    QString text(const char* key) const;
    bool flag(const char* key, bool otherwise) const;

    /// Whether an autostart entry is one that the session starts: an application, not hidden, not switched
    /// off, and meant for one of `desktops`.
    bool startsIn(const QStringList& desktops) const;

    /// The program that `Exec` starts, as it is named there; empty where `Exec` is none.
    QString namedProgram() const;

    /// The program that `Exec` starts, as an absolute path; as it is named where it can't be found, and empty
    /// where `Exec` is none.
    QString program() const;

    /// Puts a program, as an absolute path, in the place of the one that `Exec` starts; its arguments stay.
    void setProgram(const QString& path);

    void setText(const char* key, const QString& value);
    /// Takes `key` over from another entry as it stands there, where it has it.
    void copy(const char* key, const DesktopEntry& from);

    QByteArray toBytes() const;

private:
    QStringList list(const char* key) const;

    std::unique_ptr<_GKeyFile, void (*)(_GKeyFile*)> file_;
};

/// An `Exec` that starts a program, whatever characters its absolute path holds.
QString execFor(const QString& program);

/// The program that a name stands for: as it is when absolute, else found in `PATH`, else empty.
QString absoluteProgram(const QString& name);
