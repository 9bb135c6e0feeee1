// The theme settings of the top tab: theme choice, its details, saving, and the menu-bar font.
#pragma once

#include <QVariantMap>
#include <QWidget>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

class TopTabThemeSection : public QWidget {
    Q_OBJECT
public:
    explicit TopTabThemeSection(QWidget* parent = nullptr);

    // Lists the support folder's themes again, the current one first.
    void rebuildThemeMenus();
    // Shows the font of the theme in use; theme holds the current theme's entries.
    void rebuildFontMenus(const QVariantMap& theme);
    // Writes a named copy of the theme where the user chooses.
    void saveTheme(const QVariantMap& theme);

    QComboBox* themeMenu() const { return themes_; }
    QComboBox* fontFamilyMenu() const { return families_; }
    QComboBox* fontStyleMenu() const { return styles_; }
    QLabel* detailLabel() const { return detail_; }

Q_SIGNALS:
    void changeRequested(const QVariantMap& userInfo);
    void saveRequested();

private:
    void themeChosen(int index);
    void fillStyles(const QString& family, const QString& selected);
    void fontChosen();
    void numberChosen(const char* key, int value);
    // The current theme's detail with the font in use, which the theme's own credit may not name.
    void showDetail();

    QComboBox* themes_;
    QLabel* detail_;
    QPushButton* save_;
    QComboBox* families_;
    QComboBox* styles_;
    QSpinBox* adjust_;
    QSpinBox* sizeDiff_;
    QVariantMap themeEntry_; // the current theme as the theme list describes it
    QString fontInUse_;      // family and style
    bool filling_ = false;
};
