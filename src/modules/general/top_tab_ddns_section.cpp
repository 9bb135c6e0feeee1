// The list is stored as typed once the typing pauses; running is offered only for a list.
#include "modules/general/top_tab_ddns_section.h"

#include "toolkit/localization.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

// How long typing must pause before the list is stored and posted.
constexpr int kSettleMs = 600;

} // namespace

TopTabDdnsSection::TopTabDdnsSection(QWidget* parent)
    : QWidget(parent)
    , editor_(new QPlainTextEdit(this))
    , run_(new QPushButton(Tarvel::localized("Update Now"), this))
    , outcome_(new QLabel(this))
    , settle_(new QTimer(this))
{
    editor_->setObjectName(QStringLiteral("DdnsPropertyString"));
    editor_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    editor_->setPlaceholderText(QStringLiteral("valuedomain&host&example.com&password\ntarvel&confirm"));
    editor_->setFixedHeight(editor_->fontMetrics().lineSpacing() * 6);
    editor_->setLineWrapMode(QPlainTextEdit::NoWrap);
    outcome_->setForegroundRole(QPalette::PlaceholderText);
    outcome_->setWordWrap(true);
    settle_->setSingleShot(true);
    settle_->setInterval(kSettleMs);

    auto* row = new QHBoxLayout();
    row->addWidget(run_);
    row->addWidget(outcome_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(editor_);
    layout->addLayout(row);

    connect(editor_, &QPlainTextEdit::textChanged, this, &TopTabDdnsSection::textEdited);
    connect(settle_, &QTimer::timeout, this, [this] { Q_EMIT listEdited(editor_->toPlainText()); });
    connect(run_, &QPushButton::clicked, this, [this] {
        // A list typed a moment ago is stored before it runs.
        if (settle_->isActive()) {
            settle_->stop();
            Q_EMIT listEdited(editor_->toPlainText());
        }
        outcome_->setText(Tarvel::localized("Looking up the global address..."));
        Q_EMIT runRequested();
    });
    run_->setEnabled(false);
}

void TopTabDdnsSection::showList(const QString& list)
{
    if (settle_->isActive() || editor_->toPlainText() == list)
        return;
    const QSignalBlocker quiet(editor_);
    editor_->setPlainText(list);
    run_->setEnabled(!list.isEmpty());
}

void TopTabDdnsSection::showOutcome(const QString& outcome)
{
    outcome_->setText(outcome);
}

void TopTabDdnsSection::textEdited()
{
    run_->setEnabled(!editor_->toPlainText().isEmpty());
    settle_->start();
}
