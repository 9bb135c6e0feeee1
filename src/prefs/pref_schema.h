// What a module's settings are: its keys in the General settings, its stored keys with their
// types and first-run values, the theme entries it uses and the values derived from them.
#pragma once

#include "prefs/module_defaults.h"
#include "prefs/module_id.h"

#include <QVariant>
#include <QVariantMap>

#include <initializer_list>
#include <optional>
#include <span>
#include <vector>

class SettingsStore;

enum class PrefType {
    Bool,
    Integer,
    TruncatedInteger, // intervals and graph widths: read as a real number, cut to an integer
    String,
    Array,
};

// The values a number may take; one read outside them is replaced by the first-run value.
struct PrefRange {
    qint64 minimum = 0;
    qint64 maximum = 0;
};

struct PrefField {
    const char* key;
    PrefType type;
    // The first-run value; invalid for keys that are read but never written at first run.
    QVariant factory;
    // Numbers only; none when every value is usable.
    std::optional<PrefRange> range = std::nullopt;
};

// How a theme picture's drawing size is set.
enum class PictureSize { Half, Icon18 };

struct ThemePictureUse {
    const char* key;
    PictureSize size;
};

struct ModuleSchema;
using ModuleSchemaList = std::span<const ModuleSchema* const>;

// Adds the values worked out from the stored ones and the theme (text widths, label lists), and
// repairs out-of-range stored values. all: every module's schema, for the General settings.
using DeriveSettings = void (*)(ModuleDefaults& dict, SettingsStore& store, const QVariantMap& theme,
                                ModuleSchemaList all);

struct ModuleSchema {
    ModuleId id;
    const char* moduleKey;    // key of its history, and of its settings in the full set
    const char* switchKey;    // in the General dictionary; the General module has its own switch
    int sortCode;             // its number in the menu-bar order setting; 0 for General
    const char* notification; // name of its preference-change notification
    const char* prefName;     // display name of its settings tab ("" for General: the app name)
    const char* intervalKey;  // seconds between samples; null for modules without a cadence
    std::vector<PrefField> fields;
    std::vector<const char*> colorKeys;
    std::vector<ThemePictureUse> pictures;
    // The stored keys whose any being on switches the module on.
    std::vector<const char*> displayKeys;
    DeriveSettings derive = nullptr;
};

// Pieces every module's schema is made of.
namespace SchemaParts {

QVariantList ints(std::initializer_list<int> values);
// Seconds between samples, and a picture's graph width in points.
inline constexpr PrefRange kIntervalRange{1, 3600};
inline constexpr PrefRange kGraphWidthRange{1, 1000};
// The three tool items every module menu may offer, appended to the fields.
std::vector<PrefField> withToolItems(std::vector<PrefField> fields, const char* amon, const char* cnsl,
                                     const char* tmnl);
// The module's label picture and the shared menu icons, then its own pictures.
std::vector<ThemePictureUse> sharedPictures(const char* label, std::initializer_list<ThemePictureUse> more);
// The shared shadow and empty-line colours, then the module's own.
std::vector<const char*> colors(std::initializer_list<const char*> own);

} // namespace SchemaParts
