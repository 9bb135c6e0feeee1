// The tool switch row: the switch, and a note when the desktop lacks the application.
#include "modules/desktop_tool_switch.h"

#include "modules/desktop_tools.h"
#include "toolkit/localization.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>

namespace {

QWidget* row(QCheckBox* box, DesktopTool tool, QWidget* parent)
{
    const auto found = DesktopTools::find(tool);
    box->setText(DesktopTools::title(tool, found));
    box->setEnabled(found.has_value());
    auto* line = new QWidget(parent);
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(box);
    if (!found) {
        // Ticked, it would be saved and still add nothing to the menu.
        auto* note = new QLabel(Tarvel::localized("Not installed"), line);
        note->setObjectName(box->objectName() + QStringLiteral("Note"));
        note->setEnabled(false);
        layout->addWidget(note);
    }
    layout->addStretch(1);
    return line;
}

} // namespace

namespace DesktopToolSwitch {

void addRows(QLayout* layout, const std::array<const char*, 3>& keys,
             const std::function<QCheckBox*(const char* key)>& makeSwitch)
{
    constexpr std::array kTools{DesktopTool::SystemMonitor, DesktopTool::LogViewer, DesktopTool::Terminal};
    for (std::size_t i = 0; i < keys.size(); ++i) {
        QWidget* line = row(makeSwitch(keys[i]), kTools[i], layout->parentWidget());
        // A form would put a bare widget in its field column, indented from its other rows.
        if (auto* form = qobject_cast<QFormLayout*>(layout))
            form->addRow(line);
        else
            layout->addWidget(line);
    }
}

} // namespace DesktopToolSwitch
