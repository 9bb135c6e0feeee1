// How deeply a property list nests, found without building its tree.
#pragma once

#include <QByteArrayView>

// libplist builds and frees its trees recursively, so a file nested deeply enough overflows the
// stack before any check on the tree could run: these are asked before it parses.
namespace PlistNesting {

// True when every path through the arrays, sets and dictionaries of a binary property list is
// at most limit containers long; false when it is longer, loops or the layout does not hold.
bool binaryNestingWithin(QByteArrayView bytes, int limit);

// The same for XML property-list text, counting its dict and array elements.
bool xmlNestingWithin(QByteArrayView bytes, int limit);

} // namespace PlistNesting

// Either form, told apart as libplist does by the binary form's magic.
bool plistNestingWithin(QByteArrayView bytes, int limit);
