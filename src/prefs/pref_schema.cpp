// The parts every module's settings schema shares.
#include "prefs/pref_schema.h"

#include <QVariantList>

namespace SchemaParts {

QVariantList ints(std::initializer_list<int> values)
{
    QVariantList out;
    for (int v : values)
        out.append(v);
    return out;
}

std::vector<PrefField> withToolItems(std::vector<PrefField> fields, const char* amon, const char* cnsl,
                                     const char* tmnl)
{
    for (const char* key : {amon, cnsl, tmnl})
        fields.push_back({key, PrefType::Bool, QVariant()});
    return fields;
}

std::vector<ThemePictureUse> sharedPictures(const char* label, std::initializer_list<ThemePictureUse> more)
{
    std::vector<ThemePictureUse> out{{label, PictureSize::Half},   {"O01", PictureSize::Icon18},
                                     {"O02", PictureSize::Icon18}, {"O11", PictureSize::Icon18},
                                     {"O12", PictureSize::Icon18}, {"O13", PictureSize::Icon18}};
    out.insert(out.end(), more);
    return out;
}

std::vector<const char*> colors(std::initializer_list<const char*> own)
{
    std::vector<const char*> out{"Z01", "Z03"};
    out.insert(out.end(), own);
    return out;
}

} // namespace SchemaParts
