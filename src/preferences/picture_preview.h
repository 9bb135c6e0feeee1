// A status-item picture on the panel its theme is made for, and below it the same picture drawn
// with the theme's alternative on that theme's own panel.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>

class PicturePreview : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit PicturePreview(QWidget* parent = nullptr);

    // The picture drawn with the theme in use (its device pixel ratio sets its size in points),
    // magnified by zoom(); draw it at zoom() times the screen's ratio to keep it sharp.
    void setImage(const QImage& image, bool darkPanel = false);
    // The picture drawn with the theme's alternative, shown in a second strip; a null image (no
    // alternative) leaves the strip out.
    void setAlternativeImage(const QImage& image, bool darkPanel);
    static constexpr double zoom() { return 2.0; }
    const QImage& image() const { return strips_[0].image; }
    const QImage& alternativeImage() const { return strips_[1].image; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // The panels' colours: a theme's pictures are drawn to read on the one it is made for.
    static QColor lightPanelColor();
    static QColor darkPanelColor();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    struct Strip {
        QImage image;
        bool dark = false;
    };
    QSizeF imageSize(const Strip& strip) const;
    int stripCount() const;
    int stripHeight() const;
    int contentWidth() const;
    void picturesChanged();
    // A picture per core can be wider than the window: it scrolls rather than widening it.
    void updateScrolling();

    Strip strips_[2];
};
