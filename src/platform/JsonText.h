#pragma once

#include <QByteArray>
#include <QJsonDocument>

// The one way the shell turns JSON text into a document. Qt 5.15's parser loses the memory of the
// earlier value of a repeated object key when that value is an object or an array, so a server or a
// file that repeats keys would make the shell grow for as long as it runs. Earlier repeats are taken
// out of the text before Qt parses it, which keeps Qt's own rule that the last one counts. Text that
// is not JSON is refused before Qt sees it (a null document; the error names where reading stopped).
namespace JsonText {

QJsonDocument parse(const QByteArray& text, QJsonParseError* error = nullptr);

// The text without the earlier repeats of any object key (keys compared after unescaping). Text
// without repeats comes back unchanged; text that is not JSON loses the repeats before its error.
QByteArray withoutRepeatedKeys(const QByteArray& text);

} // namespace JsonText
