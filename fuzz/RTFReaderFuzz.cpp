// SPDX-License-Identifier: MIT
#include "platform/richtext/RTFReader.h"
#include "shared/utilities/classes/ExtraMutableAttributedStringUtilities.h"

#include <QGuiApplication>
#include <QTextBlock>
#include <QUrl>

#include <cstdint>
#include <cstdlib>

namespace {

void check(bool holds) {
    if (!holds)
        std::abort();
}

void checkLinks(const QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); part != block.end(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            const QString scheme = QUrl(format.anchorHref(), QUrl::StrictMode).scheme();
            check(!format.isAnchor() || scheme == u"http" || scheme == u"https" || scheme == u"mailto");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray rtf =
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    QString error;
    const std::unique_ptr<QTextDocument> document = documentFromRTF(rtf, &error);
    check((document == nullptr) == !error.isEmpty());
    if (!document)
        return 0;
    const QString text = document->toRawText();
    check(text.isValidUtf16());
    check(!text.contains(QChar(0xFDD0)) && !text.contains(QChar(0xFDD1)) && !text.contains(QChar::Null));
    checkLinks(*document);
    const QString marker = QStringLiteral("[VERSION]");
    const auto expected = text.count(marker);
    check(ExtraMutableAttributedStringUtilities::replaceAllAttributedStrings(*document, marker, marker) ==
          expected);
    check(document->toRawText() == text);
    return 0;
}
