#pragma once

#include <QCoreApplication>
#include <QSize>
#include <QString>
#include <QStringList>

/// What the person asked for when starting the program.
struct CommandLine {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    QString screenshot; ///< Draw the window into this file and quit; empty for normal use.
    QString tour; ///< Go through what there is, draw it into this folder and quit; empty for normal use.
    QSize size; ///< Of the window; empty for the size it had last.
    QString theme; ///< As Theme::apply() takes it.
    QString language; ///< A language code; empty for the system's.
    QString file; ///< To open; empty for a new dictionary.
    QString selection; ///< As Selection::select() takes it; may be empty.

    /// Whether the program only draws pictures: it asks nobody anything and leaves no traces.
    [[nodiscard]] bool isForPictures() const { return !screenshot.isEmpty() || !tour.isEmpty(); }

    QString error; ///< What is wrong with the arguments; empty when nothing is.

    /// Reads \a arguments, the program's name first. --help and --version print and end the program.
    [[nodiscard]] static CommandLine parse(const QStringList &arguments);
};
