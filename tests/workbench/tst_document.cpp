#include "documents/DictionaryCopy.h"
#include "documents/DictionaryEquality.h"
#include "model/ValueLabelElement.h"
#include "tests/support/Trees.h"
#include "tests/workbench/BytesRead.h"
#include "workbench/Document.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithAnEmptyDictionary();
    void makesAStepOfWhatChanged();
    void makesNoStepOfNothing();
    void undoesAndRedoesStructure();
    void announcesStructureAroundTheChange();
    void savesAndOpens();
    void savesElsewhereWhatWasReadFromAFileThatIsGone();
    void knowsItsFileByAnyName();
    void keepsTheHistoryWhenSaving();
    void staysAsItIsWhenOpeningFails();
    void isUnmodifiedAfterWhatWasRestored();
    void stopsReadingWhatIsCancelled();
};

void TestDocument::startsWithAnEmptyDictionary()
{
    const Document document;
    QVERIFY(document.root());
    QCOMPARE(document.root()->getLevel(), 1);
    QVERIFY(document.path().isEmpty());
    QVERIFY(!document.isModified());
}

void TestDocument::makesAStepOfWhatChanged()
{
    Document document;
    QSignalSpy modified(&document, &Document::modifiedChanged);
    document.root()->setLabel(u"Census"_s);
    document.commit(u"label of the root"_s, document.root());
    QVERIFY(document.isModified());
    QCOMPARE(modified.size(), 1);
    QCOMPARE(document.undoStack()->undoText(), u"label of the root"_s);

    document.undoStack()->undo();
    QCOMPARE(document.root()->getLabel(), QString());
    QVERIFY(!document.isModified());
    document.undoStack()->redo();
    QCOMPARE(document.root()->getLabel(), u"Census"_s);
}

void TestDocument::makesNoStepOfNothing()
{
    Document document;
    QSignalSpy changes(&document, &Document::contentChanged);
    document.commit(u"nothing"_s);
    document.edit(u"nothing"_s, [] {});
    QCOMPARE(document.undoStack()->count(), 0);
    QCOMPARE(changes.size(), 0);
}

void TestDocument::undoesAndRedoesStructure()
{
    Document document;
    document.edit(u"adding"_s, [&document] { document.root()->addVariables(makeVariable(u"AGE"_s)); });
    document.root()->getVariables()->first()->addValueLabelElement(new ValueLabelElement);
    document.commit(u"label"_s);
    const auto end = DictionaryCopy::copy(*document.root());
    document.undoStack()->undo();
    QVERIFY(document.root()->getVariables()->first()->getValueLabelElementList()->isEmpty());
    document.undoStack()->undo();
    QVERIFY(document.root()->getVariables()->isEmpty());
    document.undoStack()->redo();
    document.undoStack()->redo();
    QVERIFY(DictionaryEquality::equal(*document.root(), *end));
}

void TestDocument::announcesStructureAroundTheChange()
{
    Document document;
    QStringList order;
    connect(&document, &Document::structureAboutToChange, this, [&order] { order.append(u"before"_s); });
    connect(&document, &Document::structureChanged, this, [&order] { order.append(u"after"_s); });
    document.edit(u"adding"_s, [&] {
        order.append(u"change"_s);
        document.root()->addVariables(makeVariable(u"AGE"_s));
    });
    QCOMPARE(order, QStringList({u"before"_s, u"change"_s, u"after"_s}));
}

void TestDocument::savesAndOpens()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"census.mvdb"_s);
    Document document;
    document.edit(u"adding"_s,
                  [&document] { document.root()->addVariables(makeVariable(u"AGE"_s, {}, u"Age"_s)); });
    QVERIFY2(document.save(path), qPrintable(document.errorText()));
    QVERIFY(!document.isModified());
    QCOMPARE(document.path(), path);
    QCOMPARE(document.title(), u"census.mvdb"_s);

    Document other;
    QVERIFY2(other.open(path), qPrintable(other.errorText()));
    QCOMPARE(other.root()->getVariables()->size(), 1);
    QCOMPARE(other.root()->getVariables()->first()->getLabel(), u"Age"_s);
    QVERIFY(!other.isModified());
}

void TestDocument::savesElsewhereWhatWasReadFromAFileThatIsGone()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.mvdb"_s);
    Document document;
    QVERIFY(document.save(path));
    QVERIFY(document.open(path, Document::Access::ReadOnly));
    QVERIFY(QFile::remove(path));
    QVERIFY(!document.save(path));
    QCOMPARE(document.error(), DocumentFile::Error::ReadOnly);
    QVERIFY(document.save(folder.filePath(u"b.mvdb"_s)));
}

void TestDocument::knowsItsFileByAnyName()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"a.mvdb"_s);
    Document document;
    QVERIFY(!document.isAt({})); // It has none yet.
    QVERIFY(document.save(path));
    QVERIFY(QFile::link(path, folder.filePath(u"link.mvdb"_s)));
    for (const QString &name : {u"a.mvdb"_s, u"./a.mvdb"_s, u"link.mvdb"_s})
        QVERIFY(document.isAt(folder.filePath(name)));
    QVERIFY(!document.isAt(folder.filePath(u"b.mvdb"_s)));
    QVERIFY(QFile::remove(path));
    QVERIFY(document.isAt(folder.filePath(u"./a.mvdb"_s)));
    QVERIFY(!document.isAt(folder.filePath(u"b.mvdb"_s)));
}

void TestDocument::keepsTheHistoryWhenSaving()
{
    const QTemporaryDir folder;
    Document document;
    document.root()->setLabel(u"Census"_s);
    document.commit(u"label"_s);
    QVERIFY(document.save(folder.filePath(u"census.mvdb"_s)));
    QVERIFY(document.undoStack()->canUndo());
    document.undoStack()->undo();
    QCOMPARE(document.root()->getLabel(), QString());
    QVERIFY(document.isModified());
}

void TestDocument::staysAsItIsWhenOpeningFails()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"broken.mvdb"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{ no dictionary");
    file.close();
    Document document;
    const TDcEntity *root = document.root();
    document.root()->setLabel(u"Census"_s);
    document.commit(u"label"_s);
    QVERIFY(!document.open(file.fileName()));
    QVERIFY(!document.errorText().isEmpty());
    QVERIFY(!document.open(folder.filePath(u"missing.mvdb"_s)));
    QCOMPARE(document.root(), root);
    QVERIFY(document.isModified());
}

void TestDocument::isUnmodifiedAfterWhatWasRestored()
{
    const QTemporaryDir folder;
    Document saved;
    QVERIFY(saved.save(folder.filePath(u"census.mvdb"_s)));
    Document document;
    for (const bool opens : {false, true}) {
        QVERIFY(document.restore(saved.snapshot()->unsaved()));
        QVERIFY(document.isModified());
        QSignalSpy modified(&document, &Document::modifiedChanged);
        if (opens)
            QVERIFY(document.open(saved.path()));
        else
            document.clear();
        QVERIFY(!document.isModified());
        QCOMPARE(modified.size(), 1);
        QCOMPARE(modified.first().first().toBool(), false);
    }
}

void TestDocument::stopsReadingWhatIsCancelled()
{
    constexpr int size = 8 << 20;
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"large.mvdb"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(QByteArray(size, ' ')), size);
    file.close();
    Document document;
    std::function<void()> later;
    document.setWait([&later](const QString &, bool, const std::function<void()> &work) {
        later = work;
        return false;
    });
    QVERIFY(!document.open(file.fileName()));
    const qint64 before = bytesRead();
    later();
    QVERIFY(bytesRead() - before < size);
}

QTEST_MAIN(TestDocument)
#include "tst_document.moc"
