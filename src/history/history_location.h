// Where the history file is kept.
#pragma once

#include <QString>

// TARVEL_HISTORY_DB when set (tests, a second instance), else "tarvel/history.sqlite" in the
// user's data folder. The folder is made when missing.
QString historyDatabasePath();
