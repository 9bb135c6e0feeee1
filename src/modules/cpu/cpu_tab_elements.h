// The four elements of the CPU picture as the preferences list them.
#pragma once

#include <QList>

struct CpuTabElement {
    qint64 code;      // its number in "CpuItemSortArray", as the picture reads the order
    const char* key;  // its display switch
    const char* text; // its name, a localisation key
};

// Graph 1, level bar 2, cycle meter 3, text 4.
const QList<CpuTabElement>& cpuTabElements();
// The element of that number; none for numbers the picture does not know.
const CpuTabElement* cpuTabElement(qint64 code);

// The stored order with unknown and repeated numbers left out and missing elements appended, so
// every element can be switched and dragged whatever an older version stored.
QList<qint64> cpuTabShownOrder(const QList<qint64>& stored);
