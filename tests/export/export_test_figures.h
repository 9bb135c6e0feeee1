// A cycle's figures with every module sampled, for the export's tests.
#pragma once

#include "export/export_figures.h"

// Two CPUs, memory, two interfaces, a disk, a volume, sensors and fans; label values with
// quotes, backslashes, line breaks and non-ASCII text, as real sensor and volume names have.
ExportFigures fullTestFigures();
