// A status-item picture shown as it looks on a light and on a dark panel, one strip each.
#pragma once

#include <QAbstractScrollArea>
#include <QImage>

class PicturePreview : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit PicturePreview(QWidget* parent = nullptr);

    // Shows the picture (its device pixel ratio sets its size in points) over both strips,
    // magnified by zoom(); draw it at zoom() times the screen's ratio to keep it sharp.
    void setImage(const QImage& image);
    static constexpr double zoom() { return 2.0; }
    const QImage& image() const { return image_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

    // The panels' colours: pictures are drawn with the theme's colours and must read on both.
    static QColor lightPanelColor();
    static QColor darkPanelColor();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    QSizeF imageSize() const;
    int stripHeight() const;
    int contentWidth() const;
    // A picture per core can be wider than the window: it scrolls rather than widening it.
    void updateScrolling();

    QImage image_;
};
