// Defines the history's logging category; quiet unless debug output is enabled for it.
#include "history/history_log.h"

Q_LOGGING_CATEGORY(lcHistory, "tarvel.history", QtWarningMsg)
