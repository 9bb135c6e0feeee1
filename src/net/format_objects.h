// Fills the "%@" slots of a translated message, the way its translations are written.
#pragma once

#include <QString>
#include <QStringList>

// format with its "%@" slots replaced by values in order; text inside a value is never read as
// a slot, and slots without a value stay as they are.
QString fillObjects(const QString& format, const QStringList& values);
