// The colour settings of the top tab: one well per theme colour, grouped by module.
#pragma once

#include "preferences/preference_tab.h"

#include <QHash>
#include <QVariantMap>
#include <QWidget>

class ColorWell;

class TopTabColorSection : public QWidget {
    Q_OBJECT
public:
    explicit TopTabColorSection(QWidget* parent = nullptr);

    // Shows each module's resolved colours without announcing changes.
    void showColors(const AllModuleDefaults& all);
    ColorWell* well(const QString& key) const { return wells_.value(key); }

Q_SIGNALS:
    // The user-information of a colour change, ready to post.
    void changeRequested(const QVariantMap& userInfo);

private:
    QHash<QString, ColorWell*> wells_;
    QHash<QString, ModuleId> owners_;
};
