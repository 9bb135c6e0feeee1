// One status item's picture inside the bar window; the window opens its menu on a click.
#pragma once

#include <QImage>
#include <QPointer>
#include <QWidget>

class QMenu;

class BarItemWidget final : public QWidget {
    Q_OBJECT
public:
    explicit BarItemWidget(const QString& moduleKey, QWidget* parent);

    void setImage(const QImage& image, bool templated);
    void setMenu(QMenu* menu);
    QMenu* menu() const;

    // The picture's size in points (its pixels over its pixel ratio), rounded up.
    QSize sizeHint() const override;

Q_SIGNALS:
    // The picture's size changed, so the bar must lay its items out again.
    void pictureResized();
    // Pressed with the left button while no menu had the pointer.
    void pressed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QImage image_;
    bool templated_ = false;
    QPointer<QMenu> menu_;
};
