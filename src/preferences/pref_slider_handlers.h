// The preference sliders' rules: what their label says and what value is stored.
#pragma once

class QLabel;
class QString;
class SettingsStore;

namespace PrefFunctions {

// "Update Interval : %ld sec"; stores the value. Each handler returns whether the store saved.
bool updateSliderChange(int value, SettingsStore& defaults, QLabel* label, const QString& key);
// "Histgram width : %ld pixel" with ten times the value, which is stored: the slider counts tens.
bool graphSliderChange(int value, SettingsStore& defaults, QLabel* label, const QString& key);
// "Ignore below : %ldKB/s"; stores the value.
bool limenBaseSliderChange(int value, SettingsStore& defaults, QLabel* label, const QString& key);

// The label texts alone, for showing a stored value.
QString updateSliderText(long value);
QString graphSliderText(long value);
QString limenBaseSliderText(long value);

} // namespace PrefFunctions
