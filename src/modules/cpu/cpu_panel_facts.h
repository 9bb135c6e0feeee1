// The CPU panel's fixed rows as text: processor with core count, and two graphics rows.
#pragma once

#include <QString>
#include <QStringList>

class LoadSystemInformation;

// "<brand> <n>cores", the brand falling back to the architecture and clock, the count being the
// collector's; the brand alone (or "---") when the count is unknown.
QString cpuKindText(LoadSystemInformation& loadInfo);

// Exactly two rows, "<name> - <memory>" for each graphics processor found, "--" for the rest.
QStringList gpuRowTexts(const LoadSystemInformation& loadInfo);
