// Defines the metrics export's logging category; quiet unless debug output is enabled for it.
#include "export/export_log.h"

Q_LOGGING_CATEGORY(lcExport, "tarvel.export", QtWarningMsg)
