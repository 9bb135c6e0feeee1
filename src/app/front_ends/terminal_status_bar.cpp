// The status items' texts live in the terminal, for machines without a display.
#include "app/front_ends/terminal_status_bar.h"

#include "app/front_ends/terminal_status_item.h"
#include "toolkit/localization.h"
#include "toolkit/string_helpers.h"

#include <QFile>
#include <QTime>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

// ANSI sequences: back up over the block drawn before, clear the rest of a line or screen.
QByteArray cursorUp(int lines)
{
    return "\x1b[" + QByteArray::number(lines) + 'A';
}
constexpr const char* kClearToEnd = "\x1b[J";
constexpr const char* kClearLine = "\r\x1b[2K";
constexpr const char* kNoDisplayNotice =
    Tarvel::textKey("No display found: showing texts. Run tarvel on a desktop (DISPLAY or WAYLAND_DISPLAY) for the panel.");

} // namespace

TerminalStatusBar::TerminalStatusBar(QObject* parent)
    : QObject(parent)
{
    auto* file = new QFile(this);
    if (file->open(stdout, QIODevice::WriteOnly, QFileDevice::DontCloseHandle))
        out_ = file;
    interactive_ = ::isatty(STDOUT_FILENO) != 0;
    ownsTerminal_ = true;
}

TerminalStatusBar::TerminalStatusBar(QIODevice* out, bool interactive, QObject* parent)
    : QObject(parent)
    , out_(out)
    , interactive_(interactive)
{}

std::unique_ptr<StatusItem> TerminalStatusBar::createItem(const QString& moduleKey)
{
    auto line = std::make_shared<TerminalLine>(TerminalLine{moduleKey, {}});
    lines_.insert(lines_.begin(), line);
    scheduleRedraw();
    return std::make_unique<TerminalStatusItem>(std::move(line), this);
}

void TerminalStatusBar::showMessage(const QString& title, const QString& text)
{
    message_ = text.isEmpty() ? title : title + QStringLiteral(": ") + text;
    scheduleRedraw();
}

void TerminalStatusBar::scheduleRedraw()
{
    if (redrawPending_)
        return;
    redrawPending_ = true;
    QTimer::singleShot(0, this, &TerminalStatusBar::flush);
}

void TerminalStatusBar::flush()
{
    if (!redrawPending_)
        return;
    redrawPending_ = false;
    const QStringList lines = renderLines();
    QByteArray bytes;
    if (!noticeShown_) {
        noticeShown_ = true;
        bytes += Tarvel::localized(kNoDisplayNotice).toUtf8() + '\n';
    }
    if (interactive_) {
        if (drawnLines_ > 0)
            bytes += cursorUp(drawnLines_);
        const int columns = terminalColumns();
        for (const QString& line : lines)
            bytes += kClearLine + (columns > 0 ? line.left(columns - 1) : line).toUtf8() + '\n';
        bytes += kClearToEnd;
        drawnLines_ = static_cast<int>(lines.size());
    } else {
        const QByteArray stamp = QTime::currentTime().toString(QStringLiteral("HH:mm:ss ")).toUtf8();
        for (const QString& line : lines)
            bytes += stamp + line.toUtf8() + '\n';
    }
    write(bytes);
}

QStringList TerminalStatusBar::renderLines()
{
    std::erase_if(lines_, [](const std::weak_ptr<TerminalLine>& line) { return line.expired(); });
    qsizetype keyWidth = 0;
    for (const auto& weak : lines_)
        keyWidth = std::max(keyWidth, weak.lock()->moduleKey.size());
    QStringList rendered;
    for (const auto& weak : lines_) {
        const auto line = weak.lock();
        // A multi-line text would break the count of lines to move back over.
        QString text = TvlClasses::escapedForTerminal(line->text.simplified());
        // A module shows its line once it has something to say, not as an empty label.
        if (text.isEmpty())
            continue;
        rendered.append(line->moduleKey.leftJustified(keyWidth) + QStringLiteral("  ") + text);
    }
    if (!message_.isEmpty())
        rendered.append(QStringLiteral("* ") + TvlClasses::escapedForTerminal(message_.simplified()));
    return rendered;
}

void TerminalStatusBar::write(const QByteArray& bytes)
{
    if (!out_)
        return;
    out_->write(bytes);
    if (auto* file = qobject_cast<QFile*>(out_))
        file->flush();
}

int TerminalStatusBar::terminalColumns() const
{
    winsize size{};
    if (!ownsTerminal_ || ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0)
        return 0;
    return size.ws_col;
}
