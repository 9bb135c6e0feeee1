// The stored keys of every module: their types and first-run values, and the theme entries used.
#pragma once

#include "prefs/module_table.h"

#include <QVariant>

#include <vector>

enum class PrefType {
    Bool,
    Integer,
    TruncatedInteger, // intervals and graph widths: read as a real number, cut to an integer
    String,
    Array,
};

struct PrefField {
    const char* key;
    PrefType type;
    // The first-run value; invalid for keys that are read but never written at first run.
    QVariant factory;
};

// How a theme picture's drawing size is set.
enum class PictureSize { Half, Icon18 };

struct ThemePictureUse {
    const char* key;
    PictureSize size;
};

struct ModuleSchema {
    std::vector<PrefField> fields;
    std::vector<const char*> colorKeys;
    std::vector<ThemePictureUse> pictures;
};

const ModuleSchema& moduleSchema(ModuleId id);
