// The preferences window: one tab per module, and a line that tells when settings cannot be saved.
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

class PreferenceTab;
class QLabel;
class QTabWidget;

class PreferencesWindow : public QWidget {
    Q_OBJECT
public:
    explicit PreferencesWindow(QWidget* parent = nullptr);

    // The size the window opens at where the screen has room for it; on a smaller screen it opens
    // smaller and its pages scroll.
    static QSize defaultSize();

    // Takes ownership; tabs are shown in the order they are added, each scrolling on its own.
    void addTab(PreferenceTab* tab, const QString& label);
    int tabCount() const;
    PreferenceTab* tab(int index) const;
    int currentTab() const;
    // Selects the tab (0-based) and brings the window to the front.
    void openTab(int index);
    // Tells the user that a change could not be saved, until the next successful save.
    void showStoreFailure();
    void clearStoreFailure();
    bool storeFailureShown() const;

Q_SIGNALS:
    void tabSelected(int index);
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QTabWidget* tabs_;
    QList<QPointer<PreferenceTab>> pages_; // each page's tab, in tab order
    QLabel* failure_;
    bool placed_ = false;
};
