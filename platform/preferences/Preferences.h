// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QVariantMap>

#include <limits>
#include <memory>

class QSettings;

/// The user's preferences: values that the user stored, over registered defaults that answer for every other
/// key, in an INI file which only its user may read: 0600, in a folder of
/// 0700. A file that can't be read as one is kept aside under another name and logged, and the registered
/// defaults serve.
class Preferences : public QObject {
    Q_OBJECT

public:
    /// The program's own defaults, `lumivane/lumivane.conf` in `configFolder`.
    static Preferences* standard();

    explicit Preferences(const QString& path);
    ~Preferences() override;

    /// Adds to the registration domain, which is never written to the file.
    void registerDefaults(const QVariantMap& defaults);

    /// The numbers that a key may have.
    struct Range {
        float smallest = std::numeric_limits<float>::lowest();
        float largest = std::numeric_limits<float>::max();
    };
    void registerRange(const QString& key, const Range& range);
    /// All numbers for a key without a range of its own.
    Range rangeForKey(const QString& key) const { return ranges_.value(key); }

    /// The user's value, else the registered one, else an invalid variant.
    QVariant objectForKey(const QString& key) const;
    /// Typed reads. A stored value of another kind or outside its range is logged once and the registered one
    /// is given, else 0, false or an empty string.
    int integerForKey(const QString& key) const;
    float floatForKey(const QString& key) const;
    bool boolForKey(const QString& key) const;
    QString stringForKey(const QString& key) const;

    void setInteger(int value, const QString& key);
    void setFloat(float value, const QString& key);
    void setBool(bool value, const QString& key);
    void setObject(const QString& value, const QString& key);
    /// Forgets the user's value, so that the registered one answers again.
    void removeObjectForKey(const QString& key);

    /// Writes what is pending to disk, atomically, as happens by itself soon after each change; false when
    /// the disk refuses, with a log line the first time. What it refused goes with the next change or at the
    /// end.
    bool synchronize();

Q_SIGNALS:
    /// The answer for `key` is now another one.
    void valueChanged(const QString& key);

private:
    void synchronizeLater();
    void store(const QString& key, const QVariant& value);
    void openFile(const QString& path);
    void prepareFile();
    template <typename T, typename Convert>
    T typedValue(const QString& key, Convert convert) const;

    std::unique_ptr<QSettings> settings_;
    QVariantMap registered_;
    QHash<QString, Range> ranges_;
    mutable QStringList reportedKeys_;
    bool synchronizesLater_ = false;
    bool refused_ = false; ///< by the disk, the last time
};
