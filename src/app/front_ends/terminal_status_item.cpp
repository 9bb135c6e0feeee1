// One status item shown as a line of text in the terminal.
#include "app/front_ends/terminal_status_item.h"

#include "app/front_ends/terminal_status_bar.h"

TerminalStatusItem::TerminalStatusItem(std::shared_ptr<TerminalLine> line, TerminalStatusBar* bar)
    : line_(std::move(line))
    , bar_(bar)
{}

TerminalStatusItem::~TerminalStatusItem()
{
    line_.reset();
    if (bar_)
        bar_->scheduleRedraw();
}

void TerminalStatusItem::setText(const QString& text)
{
    if (line_->text == text)
        return;
    line_->text = text;
    if (bar_)
        bar_->scheduleRedraw();
}
