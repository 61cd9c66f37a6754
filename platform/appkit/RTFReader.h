// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QTextDocument>

#include <memory>

/// Stands for making attributed text from RTF. Backed by a reader of our own of the part of the format that a
/// short text uses: paragraphs with their alignment and spacing, bold, italic, underline, sizes, colours and
/// links. Fonts are the application's; tables, pictures and whatever else is unknown are left out.
///
/// Nothing in `rtf` is trusted. Null, with the reason in `error`, when it is no RTF, breaks off, holds a
/// malformed escape, or is larger or deeper nested than a text to be read on a screen is. Links to anything
/// but web pages (http, https) and mail addresses become plain text.
std::unique_ptr<QTextDocument> documentFromRTF(const QByteArray& rtf, QString* error);
