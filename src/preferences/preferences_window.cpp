// The preferences window's frame: title, tabs, the store-failure line and the version.
#include "preferences/preferences_window.h"

#include "preferences/alert_editor.h"
#include "preferences/preference_tab.h"
#include "preferences/wheel_guard.h"
#include "toolkit/localization.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QShortcut>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

// What the window manager adds around the window (title bar, borders), unknown until it is shown;
// the window is sized to leave that much of the screen free.
constexpr QSize kFrameAllowance(16, 48);

QScrollArea* scrolling(QWidget* page)
{
    auto* area = new QScrollArea();
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(page);
    return area;
}

} // namespace

PreferencesWindow::PreferencesWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , tabs_(new QTabWidget(this))
    , failure_(new QLabel(this))
{
    setObjectName(QStringLiteral("Preferences"));
    WheelGuard::guard(this);
    setWindowTitle(QStringLiteral("%1 %2").arg(QApplication::applicationName(), Tarvel::localized("Preferences")));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tabs_, 1);
    failure_->setObjectName(QStringLiteral("StoreFailure"));
    failure_->setWordWrap(true);
    failure_->setStyleSheet(QStringLiteral("QLabel { color: #b00020; font-weight: bold; }"));
    failure_->hide();
    layout->addWidget(failure_);
    auto* version =
        new QLabel(QStringLiteral("%1 %2").arg(QApplication::applicationName(), QStringLiteral(TARVEL_VERSION)), this);
    version->setAlignment(Qt::AlignRight);
    version->setEnabled(false);
    layout->addWidget(version);
    connect(tabs_, &QTabWidget::currentChanged, this, &PreferencesWindow::tabSelected);
    // Closed from the keyboard as any settings window is; every change is saved already.
    for (const QKeySequence& keys : {QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &QWidget::close);
}

void PreferencesWindow::addTab(PreferenceTab* tab, const QString& label)
{
    // Pages scroll inside the window, so that no page, nor the failure line, pushes the window
    // past the bottom of a small screen.
    // The alert rules sit below the module's own settings, in the same scrolling page.
    auto* page = new QWidget();
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(tab, 1);
    if (AlertEditor* alerts = tab->alertsSection())
        layout->addWidget(alerts);
    pages_.append(tab);
    tabs_->addTab(scrolling(page), label);
    connect(tab, &PreferenceTab::storeFailed, this, &PreferencesWindow::showStoreFailure);
    connect(tab, &PreferenceTab::storeSaved, this, &PreferencesWindow::clearStoreFailure);
}

QSize PreferencesWindow::defaultSize()
{
    // Room for every tab's title and the top tab's sections without scrolling sideways.
    return {780, 700};
}

int PreferencesWindow::tabCount() const
{
    return tabs_->count();
}

PreferenceTab* PreferencesWindow::tab(int index) const
{
    return index >= 0 && index < pages_.size() ? pages_[index].data() : nullptr;
}

int PreferencesWindow::currentTab() const
{
    return tabs_->currentIndex();
}

void PreferencesWindow::openTab(int index)
{
    if (index >= 0 && index < tabs_->count())
        tabs_->setCurrentIndex(index);
    if (!placed_) {
        // Centred once; after that the window stays where the user put it.
        placed_ = true;
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            const QRect area = screen->availableGeometry();
            resize(defaultSize().boundedTo(area.size() - kFrameAllowance).expandedTo(minimumSizeHint()));
            move(area.left() + std::max(0, (area.width() - width()) / 2),
                 area.top() + std::max(0, (area.height() - height() - kFrameAllowance.height()) / 2));
        }
    }
    show();
    raise();
    activateWindow();
}

void PreferencesWindow::showStoreFailure()
{
    failure_->setText(Tarvel::localized("Your settings could not be saved. They apply until Tarvel quits."));
    failure_->show();
}

void PreferencesWindow::clearStoreFailure()
{
    failure_->hide();
}

bool PreferencesWindow::storeFailureShown() const
{
    return !failure_->isHidden();
}

void PreferencesWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    Q_EMIT closed();
}
