// What the Disk and Volume pictures share: the label, then a set of elements per disk or volume.
#pragma once

#include "modules/image_bar.h"
#include "modules/picture_label.h"
#include "modules/storage_pictures.h"
#include "toolkit/text_attributes.h"

#include <QPainter>

#include <vector>

// Settings derives from StorageBasics.
template <class Sample, class Settings> class StorageImageBar : public ImageBar<Sample, Settings> {
public:
    void redrawWithSize(QSizeF size, TvlClasses::Insets newInsets, bool highLighted, bool emptyLine,
                        const Settings& settings, const History<Sample>& history,
                        const std::vector<StorageBarSet>& sets)
    {
        this->setFrame(size, newInsets, highLighted, emptyLine, settings, history);
        sets_ = sets;
    }

    double drawRect(QPainter& painter) const override
    {
        const Settings& settings = this->mySettings;
        if (!settings.loaded)
            return 0;
        double x = drawModuleLabel(painter, settings);
        TvlClasses::TextAttributes attributes = settings.textAttributes;
        const TvlClasses::Insets& frame = this->insets;
        for (const StorageBarSet& set : sets_) {
            if (settings.backgroundIcons && !set.key.isEmpty())
                drawBackgroundPicture(painter, settings.pictures[set.picture].image, x, setWidth() - frame.spacing,
                                      frame.top, this->mySize.height() - frame.bottom);
            drawSet(painter, set, attributes, x);
        }
        return x;
    }

protected:
    // One set's shown elements, each followed by the spacing.
    virtual double setWidth() const = 0;
    // Draws one set's elements from x and moves x past them.
    virtual void drawSet(QPainter& painter, const StorageBarSet& set, TvlClasses::TextAttributes& attributes,
                         double& x) const = 0;

    std::vector<StorageBarSet> sets_;
};
