// Defines the threshold alerts' logging category.
#include "alerts/alert_logging.h"

Q_LOGGING_CATEGORY(lcAlerts, "tarvel.alerts", QtInfoMsg)
