// Four exclusive buttons in a row; a click keeps the menu open and picks the range.
#include "modules/history_range_choice.h"

#include "toolkit/localization.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QToolButton>

Resolution rangeResolution(HistoryRange range)
{
    return range == HistoryRange::Week ? Resolution::Hour : Resolution::Minute;
}

std::int64_t rangeSeconds(HistoryRange range)
{
    switch (range) {
    case HistoryRange::Live:
        break;
    case HistoryRange::Hour:
        return 3600;
    case HistoryRange::Day:
        return 24 * 3600;
    case HistoryRange::Week:
        return 7 * 24 * 3600;
    }
    return 0;
}

HistoryRangeChoice::HistoryRangeChoice(HistoryRange chosen, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("historyRangeChoice"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(8, 2, 8, 2);
    layout->setSpacing(2);
    auto* group = new QButtonGroup(this);
    const std::pair<HistoryRange, const char*> ranges[] = {{HistoryRange::Live, Tarvel::textKey("Live")},
                                                           {HistoryRange::Hour, Tarvel::textKey("1 h")},
                                                           {HistoryRange::Day, Tarvel::textKey("24 h")},
                                                           {HistoryRange::Week, Tarvel::textKey("7 days")}};
    for (const auto& [range, text] : ranges) {
        auto* button = new QToolButton(this);
        button->setText(Tarvel::localized(text));
        button->setCheckable(true);
        button->setChecked(range == chosen);
        button->setAutoRaise(true);
        group->addButton(button, static_cast<int>(range));
        layout->addWidget(button);
    }
    layout->addStretch();
    connect(group, &QButtonGroup::idClicked, this,
            [this](int id) { Q_EMIT rangeChosen(static_cast<HistoryRange>(id)); });
}
