// How deeply a binary property list nests, found without building its tree.
#pragma once

#include <QByteArrayView>

namespace PlistIo {

// True when every path through the arrays, sets and dictionaries of a binary property list is
// at most limit containers long; false when it is longer, loops or the layout does not hold.
// libplist walks (and frees) its trees recursively, so this is asked before it parses.
bool binaryNestingWithin(QByteArrayView bytes, int limit);

} // namespace PlistIo
