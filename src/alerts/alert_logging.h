// The logging category of the threshold alerts.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcAlerts)
