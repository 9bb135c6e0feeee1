// One status item shown as a line of text in the terminal.
#pragma once

#include "modules/status_bar.h"

#include <QPointer>

#include <memory>

class TerminalStatusBar;

// What the terminal shows for one module; shared with the bar, which drops it once the item goes.
struct TerminalLine {
    QString moduleKey;
    QString text;
};

class TerminalStatusItem final : public StatusItem {
public:
    TerminalStatusItem(std::shared_ptr<TerminalLine> line, TerminalStatusBar* bar);
    // The line disappears at the next redraw.
    ~TerminalStatusItem() override;

    // The terminal shows words only.
    void setImage(const QImage&, bool) override {}
    void setText(const QString& text) override;
    void setMenu(QMenu*) override {}

private:
    std::shared_ptr<TerminalLine> line_;
    QPointer<TerminalStatusBar> bar_;
};
