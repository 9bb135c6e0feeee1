// The status items' texts live in the terminal, for machines without a display.
#pragma once

#include "modules/status_bar.h"

#include <QObject>

#include <memory>
#include <vector>

class QIODevice;
struct TerminalLine;

// One line per module, top to bottom in bar order. On a terminal the block is redrawn in place;
// into a pipe or file each change appends the block again, every line stamped with the time.
class TerminalStatusBar final : public QObject, public StatusBar {
    Q_OBJECT
public:
    // Writes to standard output, redrawing in place when it is a terminal.
    explicit TerminalStatusBar(QObject* parent = nullptr);
    // Writes to out (not owned); interactive chooses in-place redrawing over appended lines.
    TerminalStatusBar(QIODevice* out, bool interactive, QObject* parent = nullptr);

    // New items go above the existing ones, as the bar reads left to right.
    std::unique_ptr<StatusItem> createItem(const QString& moduleKey) override;
    // Shown under the modules' lines until the next message.
    void showMessage(const QString& title, const QString& text) override;

    // Coalesces the changes of one cycle into one redraw at the next turn of the event loop.
    void scheduleRedraw();
    // Writes what is pending now.
    void flush();

private:
    QStringList renderLines();
    void write(const QByteArray& bytes);
    int terminalColumns() const;

    QIODevice* out_ = nullptr;
    bool interactive_ = false;
    bool ownsTerminal_ = false; // out_ is standard output, so its width can be asked
    bool redrawPending_ = false;
    QString message_;
    bool noticeShown_ = false;
    int drawnLines_ = 0;
    std::vector<std::weak_ptr<TerminalLine>> lines_; // top to bottom
};
