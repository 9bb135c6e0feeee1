// What the pictures drawn from samples share: history, typed settings and the in-menu graph.
#pragma once

#include "collect/history.h"
#include "modules/module_descriptor.h"
#include "modules/module_picture.h"
#include "modules/module_settings.h"

template <class Settings, Settings (*readSettings)(const ModuleDefaults&), class Sample>
class SampledModulePicture : public ModulePicture {
public:
    void setHistory(const InfoDict& info) override
    {
        const History<Sample> history = moduleHistory<Sample>(info, moduleId());
        if (history.exists())
            setResumeArray(history);
    }
    virtual void setResumeArray(const History<Sample>& history) { resumeArray = history; }
    const History<Sample>& history() const { return resumeArray; }
    const ModuleSettings<Settings>& settings() const { return settings_; }

    QImage drawMenuGraph(qreal scale) override { return menuGraph(settings_.menu, scale); }
    QImage drawOpenMenuGraph(qreal scale) override { return menuGraph(settings_.openMenu, scale); }
    void keepForOpenMenu() override { settings_.keepForOpenMenu(); }

protected:
    using ModulePicture::ModulePicture;

    void settingsChanged() override { settings_.read(readSettings, myDefaults, withMenuLayout()); }
    // The in-menu graph drawn with settings.
    virtual QImage menuGraph(const Settings& settings, qreal scale) = 0;

    ModuleSettings<Settings> settings_;
    History<Sample> resumeArray;
};
