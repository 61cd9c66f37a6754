// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTextDocument>

#include <memory>

/// Reads the part of RTF that the credits use: Latin-1 text, centred paragraphs and their spacing, line
/// breaks, bold, italic, sizes, colours and links. Fonts are the application's; whatever else is unknown is
/// left out.
///
/// Nothing in `rtf` is trusted. Null, with the reason in `error`, when it is no RTF, breaks off, holds a
/// malformed character, is larger than 64 KiB or nested deeper than 100 groups. Links to anything but web
/// pages (http, https) and mail addresses become plain text.
std::unique_ptr<QTextDocument> documentFromRTF(const QByteArray& rtf, QString* error);
