#include "tests/cli/Program.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace
{
/// What \a pattern captures in \a text, each once.
QStringList captured(const QString &pattern, const QString &text)
{
    QStringList found;
    for (const auto &match : QRegularExpression(pattern).globalMatch(text))
        found.append(match.captured(1));
    found.sort();
    found.removeDuplicates();
    return found;
}

QStringList verbs()
{
    const QString help = runProgram({u"--help"_s}).output;
    return captured(u"\n  ([a-z]+) "_s, help.sliced(help.indexOf(u"Subcommands:"_s)));
}

/// The options of \a verb, those with one letter too. Its examples may show options of other programs.
QStringList optionsOf(const QString &verb)
{
    const QString help = runProgram({verb, u"--help"_s}).output;
    return captured(u"(?<=[ ,])(-o|--[a-z-]+)(?=[ ,\\n])"_s,
                    help.sliced(help.indexOf(u"Options:"_s)).section(u"Examples:"_s, 0, 0));
}

QString manual()
{
    QFile file(QStringLiteral(QUILLON_SOURCE_DIR "/docs/man/quillon.1"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).remove(u'\\') : QString();
}

/// What the man page says about \a verb.
QString sectionOf(const QString &verb)
{
    const QString page = manual();
    const qsizetype begin = page.indexOf(u"\n.SS %1\n"_s.arg(verb));
    return begin < 0 ? QString() : page.mid(begin + 1).section(QRegularExpression(u"\n\\.S[SH] "_s), 0, 0);
}

/// What bash offers for the last of \a words.
QStringList completions(const QStringList &words)
{
    QProcess bash;
    bash.start(u"bash"_s,
               QStringList{u"-c"_s,
                           u"source \"$0\"; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); _quillon; "
                           "printf '%s\\n' \"${COMPREPLY[@]}\""_s,
                           QStringLiteral(QUILLON_SOURCE_DIR "/cli/quillon.bash-completion")}
                   + words);
    if (!bash.waitForFinished() || bash.exitCode() != 0)
        throw std::runtime_error(bash.readAllStandardError().toStdString());
    QStringList offered = QString::fromUtf8(bash.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    offered.sort();
    return offered;
}
} // namespace

class TestManual : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyVerbHasItsSection()
    {
        QVERIFY(verbs().contains(u"show"_s));
        QCOMPARE(captured(u"\n\\.SS ([a-z]+)"_s, manual()), verbs());
    }

    void theManPageHasTheOptionsOfTheHelp_data()
    {
        QTest::addColumn<QString>("verb");
        for (const QString &verb : verbs())
            QTest::addRow("%s", qPrintable(verb)) << verb;
    }
    void theManPageHasTheOptionsOfTheHelp()
    {
        QFETCH(QString, verb);
        const QStringList options = optionsOf(verb);
        QVERIFY(options.contains(u"--help"_s));
        // Each stands at the head of a paragraph of its own.
        const QStringList heads = captured(u"\\.TP\\n(\\.[^\\n]*)\\n"_s, sectionOf(verb));
        QCOMPARE(captured(u"[ ,\"](-o|--[a-z-]+)(?![a-z-])"_s, heads.join(u'\n')), options);
    }

    void everyVerbHasExamplesInItsHelp_data() { theManPageHasTheOptionsOfTheHelp_data(); }
    void everyVerbHasExamplesInItsHelp()
    {
        QFETCH(QString, verb);
        const QString help = runProgram({verb, u"--help"_s}).output;
        QVERIFY2(help.contains(u"\nExamples:\n  quillon %1 "_s.arg(verb)), qPrintable(help));
    }

    void completesVerbs()
    {
        QStringList all = verbs() + QStringList{u"--help"_s, u"--version"_s};
        all.sort();
        QCOMPARE(completions({u"quillon"_s, QString()}), all);
        QCOMPARE(completions({u"quillon"_s, u"sh"_s}), QStringList(u"show"_s));
    }

    void completesTheOptionsOfAVerb_data() { theManPageHasTheOptionsOfTheHelp_data(); }
    void completesTheOptionsOfAVerb()
    {
        QFETCH(QString, verb);
        QStringList options = optionsOf(verb);
        options.removeOne(u"-o"_s);
        QCOMPARE(completions({u"quillon"_s, verb, u"--"_s}), options);
    }

    void completesTheFilesThatAVerbTakes()
    {
        const TestFolder folder;
        for (const QString &name : {u"a b.mvdb"_s, u"a.sav"_s, u"a.png"_s})
            (void)folder.write(name, {});
        const QString begin = folder.path(u"a"_s);
        QCOMPARE(completions({u"quillon"_s, u"show"_s, begin}), QStringList(begin + u" b.mvdb"_s));
        QCOMPARE(completions({u"quillon"_s, u"import"_s, begin}), QStringList(begin + u".sav"_s));
        QCOMPARE(completions({u"quillon"_s, u"import"_s, u"-o"_s, begin}), QStringList(begin + u" b.mvdb"_s));
        QCOMPARE(completions({u"quillon"_s, u"import"_s, u"--entity"_s, begin}), QStringList());
    }
};

QTEST_APPLESS_MAIN(TestManual)
#include "tst_manual.moc"
