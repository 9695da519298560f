#include "workbench/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace
{
// More than any display has. A picture of this size takes a quarter of a gigabyte.
constexpr int mostPixels = 8192;

/// The size in "1280x800"; empty when \a text is none, or too large.
QSize toSize(const QString &text)
{
    static const QRegularExpression pattern(u"^([1-9]\\d{1,4})x([1-9]\\d{1,4})$"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    return qMax(size.width(), size.height()) <= mostPixels ? size : QSize();
}
} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    const QCommandLineOption screenshot(u"screenshot"_s, tr("Draw the window into <file> and quit."),
                                        u"file"_s);
    const QCommandLineOption size(u"size"_s, tr("Size of the window, for instance 1280x800."), u"size"_s);
    const QCommandLineOption theme(u"theme"_s, tr("light, dark or system."), u"theme"_s, u"system"_s);
    const QCommandLineOption language(u"lang"_s, tr("Language of the texts, for instance es."), u"code"_s);
    const QCommandLineOption open(u"open"_s, tr("Open the dictionary <file>."), u"file"_s);
    const QCommandLineOption select(u"select"_s, tr("Select an entity, or one of its variables."),
                                    u"ENTITY/VARIABLE"_s);
    const QCommandLineOption tour(
        u"tour"_s, tr("Go through what the workbench can do, leave pictures in <folder> and quit."),
        u"folder"_s);
    QCommandLineParser parser;
    parser.setApplicationDescription(tr("An editor for data dictionaries."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({screenshot, tour, size, theme, language, open, select});
    parser.addPositionalArgument(u"file"_s, tr("The dictionary to open."), u"[file]"_s);
    parser.process(arguments);

    const QStringList files = parser.values(open) + parser.positionalArguments();
    CommandLine line{.screenshot = parser.value(screenshot),
                     .tour = parser.value(tour),
                     .size = toSize(parser.value(size)),
                     .theme = parser.value(theme),
                     .language = parser.value(language),
                     .file = files.value(0),
                     .selection = parser.value(select),
                     .error = {}};
    if (files.size() > 1)
        line.error = tr("One dictionary at a time, please.");
    else if (!line.tour.isEmpty() && line.file.isEmpty())
        line.error = tr("The tour needs a dictionary to go through.");
    else if (parser.isSet(size) && line.size.isEmpty())
        line.error = tr("The size is written as in 1280x800. Neither number is above %1.").arg(mostPixels);
    else if (!QStringList{u"light"_s, u"dark"_s, u"system"_s}.contains(line.theme))
        line.error = tr("The theme is light, dark or system.");
    return line;
}
