// SPDX-License-Identifier: MIT
#pragma once

#include "platform/carbon/MacTypes.h"

#include <QByteArray>
#include <QUrl>

#include <cstddef>

/// Stands for the File Manager's file references. Backed by absolute paths of things that existed when the
/// reference was made; symbolic links stay as they are.

struct FSRef {
    QByteArray path;
};

constexpr OSStatus dskFulErr = -34;
constexpr OSStatus ioErr = -36;
constexpr OSStatus fnfErr = -43;
constexpr OSStatus wPrErr = -44;   ///< the disk is read-only
constexpr OSStatus dupFNErr = -48; ///< there is a file of that name
constexpr OSStatus wrPermErr = -61;
constexpr OSStatus pathTooLongErr = -2110;

/// The reference of an absolute path; fnfErr when there is nothing by that name.
OSStatus FSPathMakeRef(const QByteArray& path, FSRef* ref);

/// Stores the path with a zero byte at its end; pathTooLongErr when it needs more than `maximumSize` bytes.
OSStatus FSRefMakePath(const FSRef& ref, char* path, std::size_t maximumSize);

/// The reference of a file URL; false when it is no file URL or there is no such file.
bool CFURLGetFSRef(const QUrl& url, FSRef* ref);

/// The status that tells of a system call's error number.
OSStatus statusOfErrno(int number);
