// SPDX-License-Identifier: MIT
#include "platform/carbon/Files.h"

#include <QFile>

#include <cerrno>
#include <cstring>

#include <sys/stat.h>

OSStatus FSPathMakeRef(const QByteArray& path, FSRef* ref) {
    struct stat status {};
    if (!path.startsWith('/') || path.contains('\0') || stat(path.constData(), &status) != 0)
        return fnfErr;
    ref->path = path;
    return noErr;
}

OSStatus FSRefMakePath(const FSRef& ref, char* path, std::size_t maximumSize) {
    const auto size = static_cast<std::size_t>(ref.path.size()) + 1;
    if (size > maximumSize)
        return pathTooLongErr;
    std::memcpy(path, ref.path.constData(), size);
    return noErr;
}

bool CFURLGetFSRef(const QUrl& url, FSRef* ref) {
    return url.isLocalFile() && FSPathMakeRef(QFile::encodeName(url.toLocalFile()), ref) == noErr;
}

OSStatus statusOfErrno(int number) {
    switch (number) {
    case 0:
        return noErr;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return dskFulErr;
    case EROFS:
        return wPrErr;
    case EEXIST:
        return dupFNErr;
    case EACCES:
    case EPERM:
        return wrPermErr;
    case ENOENT:
    case ENOTDIR:
        return fnfErr;
    default:
        return ioErr;
    }
}
