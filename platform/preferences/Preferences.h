// SPDX-License-Identifier: MIT
#pragma once

#include "platform/preferences/PreferenceKey.h"

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <type_traits>

class QSettings;

/// The user's preferences: values that the user stored, over defaults that answer for every other key, in an
/// INI file which only its user may read: 0600, in a folder of 0700. A file that can't be read as one is kept
/// aside under another name and logged, and the defaults serve.
class Preferences : public QObject {
    Q_OBJECT

public:
    /// The program's own defaults, `lumivane/lumivane.conf` in `configFolder`.
    static Preferences* standard();

    explicit Preferences(const QString& path);
    ~Preferences() override;

    /// Has the key's default answer under its name as well, as layouts ask, or another default that is known
    /// only now. Defaults are never written to the file.
    template <typename T>
    void registerKey(const PreferenceKey<T>& key) {
        registerKey(key, key.fallback);
    }
    template <typename T>
    void registerKey(const PreferenceKey<T>& key, const std::type_identity_t<T>& fallback) {
        registered_.insert(key.name, {fallback, key.range});
    }

    /// The user's value, else the default. A stored value of another kind or outside the key's range is
    /// logged once, and the default is given.
    template <typename T>
    T value(const PreferenceKey<T>& key) const {
        return read(key.name, key.range, key.fallback).template value<T>();
    }

    template <typename T>
    void set(const PreferenceKey<T>& key, const std::type_identity_t<T>& value) {
        store(key.name, value);
    }

    /// Forgets the user's value, so that the default answers again.
    template <typename T>
    void remove(const PreferenceKey<T>& key) {
        forget(key.name);
    }

    // The same by name, for controls that a layout binds to a preference. The default of a name that is not
    // registered is 0 or false, and its range all numbers.

    PreferenceRange rangeForKey(const QString& name) const { return registered_.value(name).range; }
    int integerForKey(const QString& name) const { return read(name, {}, 0).toInt(); }
    float floatForKey(const QString& name) const { return read(name, rangeForKey(name), 0.0F).toFloat(); }
    bool boolForKey(const QString& name) const { return read(name, {}, false).toBool(); }
    void setInteger(int value, const QString& name) { store(name, value); }
    void setFloat(float value, const QString& name) { store(name, value); }
    void setBool(bool value, const QString& name) { store(name, value); }

    /// Writes what is pending to disk, atomically, as happens by itself soon after each change; false when
    /// the disk refuses, with a log line the first time. What it refused goes with the next change or at the
    /// end.
    bool synchronize();

Q_SIGNALS:
    /// The answer for the preference of this name is now another one.
    void valueChanged(const QString& name);

private:
    struct Registered {
        QVariant fallback;
        PreferenceRange range;
    };

    void synchronizeLater();
    QString answer(const QString& name) const;
    QVariant read(const QString& name, const PreferenceRange& range, const QVariant& fallback) const;
    void store(const QString& name, const QVariant& value);
    void forget(const QString& name);
    void openFile(const QString& path);
    void prepareFile();

    std::unique_ptr<QSettings> settings_;
    QHash<QString, Registered> registered_;
    mutable QStringList reported_;
    bool synchronizesLater_ = false;
    bool refused_ = false; ///< by the disk, the last time
};
