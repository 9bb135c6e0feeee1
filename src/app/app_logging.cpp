// Defines the application core's logging category.
#include "app/app_logging.h"

Q_LOGGING_CATEGORY(lcApp, "tarvel.app", QtInfoMsg)
