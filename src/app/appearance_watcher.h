// Whether the desktop prefers a dark appearance, and when that changes.
#pragma once

#include <QDBusVariant>
#include <QObject>

class QPalette;

#include <optional>

// Asks the desktop's settings portal over D-Bus ("color-scheme"); where no portal answers, the
// application palette's lightness decides.
class AppearanceWatcher : public QObject {
    Q_OBJECT
public:
    explicit AppearanceWatcher(QObject* parent = nullptr);

    bool isDark() const { return dark_; }

    // The portal's colour-scheme value: 1 prefers dark, 2 prefers light, 0 has no preference.
    static std::optional<bool> darkFromColorScheme(uint value);
    // A palette is dark when its window colour is darker than its text colour.
    static bool darkFromPalette(const QPalette& palette);

Q_SIGNALS:
    void appearanceChanged(bool dark);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void portalSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void update();
    std::optional<bool> readPortal() const;

    std::optional<bool> portalDark_;
    bool dark_ = false;
};
