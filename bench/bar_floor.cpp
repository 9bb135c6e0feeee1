// The least a bar window can cost: six 22-point pictures redrawn once a second into images and
// shown in a frameless window kept above the others (or, with --tray, as six tray icons). The
// budget bench measures it beside the monitor's own bar window or tray items.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QWidget>

#include <array>
#include <cmath>
#include <deque>

namespace {

constexpr int kPictures = 6;
constexpr int kHeight = 22;
constexpr int kWidth = 48;
constexpr int kSpacing = 4;

class FloorBar final : public QWidget {
public:
    explicit FloorBar(bool inTray)
        : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    {
        if (inTray) {
            for (auto& icon : trayIcons_) {
                icon = new QSystemTrayIcon(this);
                icon->show();
            }
        }
        setAutoFillBackground(true);
        // Along the bottom edge, so that on a screen shared with the monitor's bar (along the
        // top) both can be seen.
        if (const QScreen* screen = QGuiApplication::primaryScreen()) {
            const QRect area = screen->geometry();
            setGeometry(area.left(), area.bottom() + 1 - kHeight, area.width(), kHeight);
        }
        auto* timer = new QTimer(this);
        connect(timer, &QTimer::timeout, this, &FloorBar::tick);
        timer->start(1000);
        tick();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        int x = width();
        for (const QImage& picture : pictures_) {
            x -= kWidth + kSpacing;
            painter.drawImage(QPointF(x, 0), picture);
        }
    }

private:
    // A new value per picture, then each picture drawn afresh: a graph of its history and its
    // newest value as text, as a module's picture would show them.
    void tick()
    {
        ++second_;
        const qreal ratio = devicePixelRatioF();
        for (int p = 0; p < kPictures; ++p) {
            std::deque<double>& history = histories_[static_cast<std::size_t>(p)];
            history.push_back(0.5 + 0.5 * std::sin(second_ * (0.3 + 0.1 * p)));
            if (history.size() > kWidth)
                history.pop_front();
            QImage& picture = pictures_[static_cast<std::size_t>(p)];
            picture = QImage(QSize(kWidth, kHeight) * ratio, QImage::Format_ARGB32_Premultiplied);
            picture.setDevicePixelRatio(ratio);
            picture.fill(Qt::transparent);
            QPainter painter(&picture);
            painter.setRenderHint(QPainter::Antialiasing);
            QPainterPath graph(QPointF(0, kHeight));
            for (std::size_t i = 0; i < history.size(); ++i)
                graph.lineTo(static_cast<double>(i), kHeight * (1 - history[i]));
            graph.lineTo(static_cast<double>(history.size()), kHeight);
            painter.fillPath(graph, QColor(60, 140, 220, 160));
            painter.setPen(palette().color(QPalette::WindowText));
            painter.setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 8));
            painter.drawText(QRectF(0, 0, kWidth, kHeight), Qt::AlignCenter,
                             QString::number(history.back() * 100, 'f', 1) + QLatin1Char('%'));
        }
        if (trayIcons_[0] == nullptr) {
            update();
            return;
        }
        for (int p = 0; p < kPictures; ++p)
            trayIcons_[static_cast<std::size_t>(p)]->setIcon(
                QIcon(QPixmap::fromImage(pictures_[static_cast<std::size_t>(p)])));
    }

    std::array<std::deque<double>, kPictures> histories_;
    std::array<QImage, kPictures> pictures_;
    std::array<QSystemTrayIcon*, kPictures> trayIcons_{};
    int second_ = 0;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const bool inTray = QCoreApplication::arguments().contains(QStringLiteral("--tray"));
    FloorBar bar(inTray);
    if (!inTray)
        bar.show();
    return QApplication::exec();
}
