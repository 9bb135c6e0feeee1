// A button that shows a colour and edits it, alpha included, in a colour dialog.
#pragma once

#include <QColor>
#include <QPointer>
#include <QToolButton>

class QColorDialog;

class ColorWell : public QToolButton {
    Q_OBJECT
public:
    explicit ColorWell(QWidget* parent = nullptr);

    QColor color() const { return color_; }
    // Shows the colour without announcing a change.
    void setColor(const QColor& color);

Q_SIGNALS:
    // Every step of a drag in the dialog, so that the bar follows the user's hand.
    void colorChanged(const QColor& color);

private:
    void openDialog();
    void paintSwatch();

    QColor color_;
    QPointer<QColorDialog> dialog_;
};
