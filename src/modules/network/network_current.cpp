// Lays out and fills the traffic panel.
#include "modules/network/network_current.h"

#include "modules/network/network_rates.h"
#include "modules/panel_labels.h"
#include "toolkit/localization.h"

#include <QGridLayout>
#include <QLabel>

Network_Current::Network_Current(QWidget* parent)
    : QWidget(parent)
{
    auto* grid = PanelLabels::panelGrid(this, 12);
    grid->addWidget(PanelLabels::title(this, Tarvel::textKey("Upload")), 0, 1, Qt::AlignRight);
    grid->addWidget(PanelLabels::title(this, Tarvel::textKey("Download")), 0, 2, Qt::AlignRight);
    const char* titles[] = {Tarvel::textKey("Now"), Tarvel::textKey("Average"), Tarvel::textKey("Peak"), Tarvel::textKey("Since Boot")};
    for (std::size_t row = 0; row < cells_.size(); ++row) {
        const int line = static_cast<int>(row) + 1;
        grid->addWidget(PanelLabels::title(this, titles[row]), line, 0);
        for (std::size_t column = 0; column < 2; ++column) {
            cells_[row][column] = PanelLabels::figure(this, Qt::AlignRight);
            grid->addWidget(cells_[row][column], line, static_cast<int>(column) + 1);
        }
    }
    grid->addWidget(PanelLabels::title(this, Tarvel::textKey("Global IP Address")), 5, 0);
    globalAddress_ = PanelLabels::figure(this, Qt::AlignRight);
    grid->addWidget(globalAddress_, 5, 1, 1, 2);
    grid->addWidget(PanelLabels::title(this, Tarvel::textKey("Location")), 6, 0);
    location_ = new QLabel(this);
    location_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(location_, 6, 1, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
}

void Network_Current::replaceData(const NetworkPictureSettings& settings, const History<NetworkSample>& resumeArray)
{
    figures_ = networkPanelFigures(resumeArray, settings.bits);
    const QString* texts[4][2] = {{&figures_.nowUp, &figures_.nowDw},
                                  {&figures_.avgUp, &figures_.avgDw},
                                  {&figures_.peakUp, &figures_.peakDw},
                                  {&figures_.totalUp, &figures_.totalDw}};
    const QColor colors[2] = {settings.up, settings.down};
    for (std::size_t row = 0; row < cells_.size(); ++row) {
        for (std::size_t column = 0; column < 2; ++column) {
            QLabel* cell = cells_[row][column];
            cell->setText(*texts[row][column]);
            // The newest figures in the picture's colours, the rest as plain text.
            if (row == 0 && colors[column].alpha() > 0 &&
                cell->palette().color(QPalette::WindowText) != colors[column]) {
                QPalette palette = cell->palette();
                palette.setColor(QPalette::WindowText, colors[column]);
                cell->setPalette(palette);
            }
        }
    }
}

void Network_Current::setLocation(const QString& location)
{
    location_->setText(location);
}

void Network_Current::setGlobalAddress(const QString& address)
{
    globalAddress_->setText(address);
}

QString Network_Current::locationText() const
{
    return location_->text();
}
