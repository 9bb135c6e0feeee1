// The VNC picture: the theme's screen image and the module's name.
#pragma once

#include "modules/module_picture.h"

class VncModulePicture final : public ModulePicture {
public:
    explicit VncModulePicture(MenuModuleDelegate* delegate)
        : ModulePicture(delegate, ModuleId::Vnc)
    {}

    std::optional<BarPicture> drawBar(bool highlighted, qreal scale) override;
};
