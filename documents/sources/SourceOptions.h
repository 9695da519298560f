#pragma once

#include <QChar>
#include <QString>

#include <functional>

/// How a source is read. What is left empty is found out from the file.
struct SourceOptions {
    /// Whether the values are looked at too: they give the lowest and highest value of each field, and say
    /// whether a number without a declared format has decimals. Without them a damaged end stays unseen, and
    /// the types of a text file are guessed from its first rows.
    bool readData = true;

    /// Name of the character encoding, for instance "windows-1252". Overrules what the file says.
    QString encoding;

    /// What separates the cells of a text file; an ASCII character. Null: comma, semicolon, tab or bar,
    /// whichever divides the rows alike, unless a first line such as "sep=;" says it.
    QChar delimiter;

    /// Whether the first row of a text file names its columns. Without it they are called V1, V2 and so on.
    bool header = true;

    /// File with the value labels of a SAS data file. Empty: the catalog of the same name beside it, if any.
    QString catalog;

    /// Called now and then with the part that is done, from 0 to 1; false cancels the reading. Must not
    /// throw. May be empty.
    std::function<bool(double part)> progress;
};
