// Defines the collectors' logging category; quiet unless debug output is enabled for it.
#include "collect/collect_log.h"

Q_LOGGING_CATEGORY(lcCollect, "tarvel.collect", QtWarningMsg)
