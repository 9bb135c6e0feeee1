// The General item's picture comes from the theme; its words name the running program.
#include "modules/general/general_module_picture.h"

#include "modules/general/general_item_text.h"
#include "prefs/pref_keys.h"

std::optional<BarPicture> GeneralModulePicture::drawBar(bool highlighted, qreal scale)
{
    Q_UNUSED(highlighted)
    Q_UNUSED(scale)
    return BarPicture{themePictureImage(myDefaults.picture(QString::fromLatin1("N01"))), itemText()};
}

QString GeneralModulePicture::itemText() const
{
    if (myDelegate == nullptr)
        return myDefaults.stringValue(PrefKey::PrefName);
    return generalItemText(myDefaults, myDelegate->settingsStore());
}
