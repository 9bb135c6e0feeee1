// The General picture: the application's own image, and its name with version and settings place.
#pragma once

#include "modules/module_picture.h"

class GeneralModulePicture final : public ModulePicture {
public:
    explicit GeneralModulePicture(MenuModuleDelegate* delegate)
        : ModulePicture(delegate, ModuleId::General)
    {}

    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;

private:
    // Where no picture shows (the text view, tooltips) the words are the useful part.
    QString itemText() const;
};
