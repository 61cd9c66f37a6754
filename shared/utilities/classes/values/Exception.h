// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <exception>

/// An exception with a name that tells the kind and a reason in words, which `what()` gives in UTF-8.
class Exception : public std::exception {
public:
    Exception(const QString& name, const QString& reason);
    const QString& name() const { return name_; }
    const QString& reason() const { return reason_; }
    const char* what() const noexcept override { return utf8_.constData(); }

private:
    QString name_;
    QString reason_;
    QByteArray utf8_;
};

/// A programming error: something that can't be while the code is right. The reason tells the message, the
/// operation, the source file (without folder and extension) and the line it was raised at.
class InternalInconsistencyException : public Exception {
public:
    explicit InternalInconsistencyException(const QString& message, const char* method = __builtin_FUNCTION(),
                                            const char* file = __builtin_FILE(), int line = __builtin_LINE());
};
