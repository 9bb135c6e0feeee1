// A status bar for tests that records which module items exist and what they show.
#pragma once

#include "modules/status_bar.h"

#include <QHash>
#include <QImage>
#include <QStringList>

#include <memory>

// Records which module items exist, in the order a left-inserting bar would show them.
class RecordingStatusBar final : public StatusBar {
public:
    class Item final : public StatusItem {
    public:
        Item(RecordingStatusBar& bar, QString key)
            : bar_(bar)
            , key_(std::move(key))
        {
            bar_.shown.prepend(key_);
        }
        ~Item() override { bar_.shown.removeOne(key_); }
        void setImage(const QImage& image, bool templated) override
        {
            bar_.images[key_] = image;
            bar_.templated[key_] = templated;
        }
        void setText(const QString& text) override { bar_.texts[key_] = text; }
        void setMenu(QMenu* menu) override { bar_.menus[key_] = menu; }

    private:
        RecordingStatusBar& bar_;
        QString key_;
    };

    std::unique_ptr<StatusItem> createItem(const QString& moduleKey) override
    {
        ++created;
        return std::make_unique<Item>(*this, moduleKey);
    }

    void showMessage(const QString& title, const QString& text) override { messages.append(title + u'|' + text); }

    QStringList shown;
    QStringList messages; // "title|text"
    QHash<QString, QImage> images;
    QHash<QString, bool> templated;
    QHash<QString, QString> texts;
    QHash<QString, QMenu*> menus;
    int created = 0;
};
