// One line of the user's dynamic DNS list, read for what it asks.
#pragma once

#include <QString>

struct DdnsLine {
    enum class Kind {
        Blank,
        Comment,     // starts with "#"
        NoSeparator, // text without any "&"
        ValueDomain, // valuedomain&host&domain&password, no field empty
        Confirm,     // tarvel&confirm: only announce the change
        Malformed,
    };

    Kind kind = Kind::Blank;
    QString firstPart; // what a malformed line starts with, up to its first "&"
    QString host;
    QString domain;
    QString password;

    static DdnsLine parse(const QString& line);
};

// The label of line number (from 1) in a list of count lines, zero-padded to count's width.
QString ddnsLineLabel(int number, int count);
