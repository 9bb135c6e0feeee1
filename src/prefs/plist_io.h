// Property-list files read and written through libplist, as Qt variants.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVariantMap>

#include <optional>

namespace PlistIo {

// Settings and themes (with their pictures) stay far below these; anything beyond is not ours.
inline constexpr int kMaxNesting = 64;
inline constexpr qint64 kMaxFileBytes = 32 * 1024 * 1024;

// Parses XML or binary property-list bytes; empty optional when they are not a property list.
// Dictionaries become QVariantMap, arrays QVariantList, data QByteArray, dates QDateTime,
// booleans bool, integers qint64, reals double, strings QString.
std::optional<QVariant> parse(const QByteArray& bytes);

// The XML property-list form of a variant built from the types above.
QByteArray toXml(const QVariant& value);

// The dictionary stored at path; empty optional when the file is missing, not a regular file,
// larger than kMaxFileBytes, nested deeper than kMaxNesting, unreadable or its top level is not
// a dictionary.
std::optional<QVariantMap> readDictionary(const QString& path);

// Writes the dictionary as an XML property list through a temporary file renamed into place,
// so that a crash never leaves a half-written file. False when it could not be written.
bool writeDictionaryAtomically(const QString& path, const QVariantMap& dict);

} // namespace PlistIo
