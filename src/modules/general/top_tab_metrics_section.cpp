// The metrics switch and address, checked as typed so a bad address is told at once.
#include "modules/general/top_tab_metrics_section.h"

#include "export/listen_address.h"
#include "modules/general/metrics_keys.h"
#include "toolkit/localization.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

TopTabMetricsSection::TopTabMetricsSection(QWidget* parent)
    : QWidget(parent)
    , switch_(new QCheckBox(Tarvel::localized("Serve metrics for Prometheus at /metrics")))
    , address_(new QLineEdit())
    , status_(new QLabel())
{
    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    switch_->setObjectName(QLatin1String(PrefKey::MetricsServeEnabled));
    address_->setObjectName(QLatin1String(PrefKey::MetricsListenAddress));
    address_->setPlaceholderText(QString::fromLatin1(kDefaultListenAddress));
    status_->setWordWrap(true);
    status_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    form->addRow(switch_);
    form->addRow(Tarvel::localized("Listen on"), address_);
    form->addRow(status_);
    connect(switch_, &QCheckBox::toggled, this, &TopTabMetricsSection::switched);
    connect(address_, &QLineEdit::editingFinished, this, &TopTabMetricsSection::addressFinished);
}

void TopTabMetricsSection::showSettings(bool enabled, const QString& address)
{
    const QSignalBlocker blocker(switch_);
    switch_->setChecked(enabled);
    if (!address_->hasFocus())
        address_->setText(address);
}

void TopTabMetricsSection::showStatus(const QString& status)
{
    status_->setText(status);
}

void TopTabMetricsSection::addressFinished()
{
    const QString text = address_->text().trimmed();
    if (!text.isEmpty() && !parseListenAddress(text)) {
        showStatus(Tarvel::localized("\"%1\" is not an address and port such as 127.0.0.1:9772.").arg(text));
        return;
    }
    Q_EMIT addressEdited(text);
}
