#include "documents/codebook/Codebook.h"
#include "SampleDictionary.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace SampleDictionary;

namespace
{
const QString hostile = u"</td><script>alert(\"1\")</script>&amp;' onload=x<!-- \u0000\u0001\u202e"_s;

QString page(const TDcEntity *root, const CodebookOptions &options = {})
{
    return QString::fromUtf8(Codebook::html(root, options));
}

/// The page without its styles and its script.
QString body(const TDcEntity *root)
{
    QString html = page(root);
    html.remove(QRegularExpression(u"<style>.*?</style>"_s, QRegularExpression::DotMatchesEverythingOption));
    html.remove(QRegularExpression(u"<script>.*</script>"_s, QRegularExpression::DotMatchesEverythingOption));
    return html;
}

qsizetype count(const QString &html, const QString &pattern)
{
    return html.count(QRegularExpression(pattern));
}

/// Every tag that is opened is closed, in order; tags without content aside.
QString firstUnbalanced(const QString &html)
{
    static const QRegularExpression tag(u"<(/?)([a-z][a-z0-9]*)(?:\\s[^<>]*)?>"_s);
    QStringList open;
    for (auto match = tag.globalMatch(html); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const QString name = found.captured(2);
        if (name == "meta"_L1 || name == "input"_L1)
            continue;
        if (found.captured(1).isEmpty())
            open.append(name);
        else if (open.isEmpty() || open.takeLast() != name)
            return found.captured(0) + u" at "_s + QString::number(found.capturedStart());
    }
    return open.join(u", "_s);
}

QByteArray pdf(const TDcEntity *root)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    const QString problem = Codebook::writePdf(root, buffer);
    return problem.isEmpty() ? buffer.data() : QByteArray();
}

/// What is drawn on each page of \a file, in the language of such files.
QStringList drawings(const QByteArray &file)
{
    QStringList pages;
    const QByteArray begin("/FlateDecode\n>>\nstream\n");
    for (qsizetype at = 0; (at = file.indexOf(begin, at)) >= 0; at += begin.size()) {
        const qsizetype start = at + begin.size();
        const QByteArray packed = file.sliced(start, file.indexOf("endstream", start) - start);
        const QString text = QString::fromLatin1(qUncompress(QByteArray("\0\1\0\0", 4) + packed));
        if (text.contains("\nBT\n"_L1))
            pages.append(text);
    }
    return pages;
}

/// How far below the top of the page's text area the lines in \a drawing stand, and how high that area is.
std::pair<QList<double>, double> baselines(const QString &drawing)
{
    static const QRegularExpression line(u"Tm\\n\\S+ (\\S+) Td"_s);
    static const QRegularExpression area(u"\\n(\\d+) (\\d+) l\\n"_s);
    QList<double> found;
    for (auto match = line.globalMatch(drawing); match.hasNext();)
        found.append(-match.next().captured(1).toDouble());
    double height = 0;
    for (auto match = area.globalMatch(drawing); match.hasNext() && height == 0;)
        height = match.next().captured(2).toDouble();
    return {found, height};
}

/// A device that takes nothing.
class FullDevice : public QIODevice
{
protected:
    qint64 readData(char * /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override
    {
        setErrorString(u"No space left on device"_s);
        return -1;
    }
};
} // namespace

class tst_Codebook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameDictionaryGivesTheSameBytes();
    void needsNothingElse();
    void everyTagIsClosed();
    void escapesHostileTexts();
    void everyLinkHasItsTarget();
    void headingsAndScopesAreProper();
    void saysWhatIsInTheDictionary();
    void leavesOutWhatIsNotThere();
    void anEmptyEntitySaysSo();
    void takesTitleAndLanguage();
    void nullsAreNoTrouble();
    void aDeepChainIsNoTrouble();
    void writesPdf();
    void pdfGrowsWithTheDictionary();
    void aPdfPageHoldsNothingOfTheNext();
    void saysWhenPdfCannotBeWritten();
};

void tst_Codebook::sameDictionaryGivesTheSameBytes()
{
    QCOMPARE(Codebook::html(make().get()), Codebook::html(make().get()));
    const auto other = make();
    other->getVariables()->first()->setLabel(u"Other"_s);
    QVERIFY(Codebook::html(other.get()) != Codebook::html(make().get()));
}

void tst_Codebook::needsNothingElse()
{
    const QString html = page(make().get());
    QCOMPARE(count(html, u"https?:|\\bsrc=|<link|@import|url\\("_s), 0);
    QVERIFY(html.startsWith("<!DOCTYPE html>\n<html lang=\"en\">"_L1));
    QVERIFY(html.contains("<meta charset=\"utf-8\">"_L1));
    QVERIFY(html.contains("prefers-color-scheme:dark"_L1));
    QVERIFY(html.contains("@media print"_L1));
    QCOMPARE(count(html, u"<input id=\"search\" type=\"search\""_s), 1);
}

void tst_Codebook::everyTagIsClosed()
{
    const auto root = make();
    root->getChildren()->append(new TDcEntity); // a second branch, without anything
    QCOMPARE(firstUnbalanced(body(root.get())), QString());
    QCOMPARE(firstUnbalanced(body(nullptr)), QString());
}

void tst_Codebook::escapesHostileTexts()
{
    const auto root = make();
    TDcEntity *person = root->getChildren()->first();
    for (TDcEntity *entity : {root.get(), person}) {
        entity->setName(hostile);
        entity->setLabel(hostile);
        entity->setAlias(hostile);
        entity->setRefCode(hostile);
        entity->setRefLabel(hostile);
        entity->setWeightVariable(hostile);
        entity->setDocumentationEntity(hostile);
        for (TDcVariable *variable : std::as_const(*entity->getVariables())) {
            variable->setName(hostile);
            variable->setLabel(hostile);
            variable->setAlias(hostile);
            variable->setGroup(hostile);
            variable->setVarType(hostile);
            variable->setDocumentation(hostile);
            variable->getMetadataVariables()->setRecord(hostile);
            variable->getMetadataVariables()->setField(hostile + u'x');
            for (ValueLabelElement *element : std::as_const(*variable->getValueLabelElementList())) {
                element->setValue(hostile);
                element->setLabel(hostile);
            }
        }
    }
    CodebookOptions options;
    options.title = hostile;
    options.language = hostile;
    const QString html = page(root.get(), options);
    QCOMPARE(count(html, u"<script>"_s), 1); // its own
    QVERIFY(!html.contains("alert(\"1\")"_L1));
    QVERIFY(!html.contains("<!--"_L1));
    QCOMPARE(count(html, u"[\\x00-\\x08\\x0b-\\x1f]"_s), 0);
    QVERIFY(
        html.contains("&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt;&amp;amp;&#39; onload=x&lt;!-- "_L1));
    QCOMPARE(firstUnbalanced(body(root.get())), QString());
    QVERIFY(!pdf(root.get()).isEmpty());
}

void tst_Codebook::everyLinkHasItsTarget()
{
    const QString html = page(make().get());
    static const QRegularExpression link(u"href=\"#([^\"]+)\""_s);
    int links = 0;
    for (auto match = link.globalMatch(html); match.hasNext(); ++links)
        QCOMPARE(count(html, u"id=\""_s + match.next().captured(1) + u'"'), 1);
    QCOMPARE(links, 1 + 2 + 6); // to the content, the entities, the variables
}

void tst_Codebook::headingsAndScopesAreProper()
{
    const QString html = body(make().get());
    QCOMPARE(count(html, u"<h1>"_s), 1);
    QCOMPARE(count(html, u"<h2"_s), 1 + 2); // the contents, the entities
    QCOMPARE(count(html, u"<h3>"_s), 6);
    QCOMPARE(count(html, u"<th(?! scope=\"(row|col)\")[ >]"_s), 0);
    QCOMPARE(count(html, u"<table"_s), count(html, u"<caption>"_s));
}

void tst_Codebook::saysWhatIsInTheDictionary()
{
    const auto root = make();
    root->getVariables()->first()->setDocumentation(u"Given\nby the office."_s);
    const QString html = page(root.get());
    for (const QString &text :
         {u"<h1>Households</h1>"_s, u"Entities: 2. Variables: 6."_s,
          u"Everybody who usually lives in the household."_s, u"<dt>Belongs to</dt><dd>Households</dd>"_s,
          u"<dt>Type</dt><dd>Decimal number</dd>"_s,
          u"<dt>Valid range</dt><dd>0 – 10000, 10001 – 900000</dd>"_s, u"<dt>Missing</dt><dd>999999</dd>"_s,
          u"<dt>Not applicable</dt><dd>999998</dd>"_s, u"<dt>Position</dt><dd>4–9 of record PERSON</dd>"_s,
          u"<dt>Group</dt><dd>Demography</dd>"_s, u"<dt>Length</dt><dd>20</dd>"_s,
          u"<dt>Decimals</dt><dd>2</dd>"_s,
          u"<th scope=\"row\" class=\"code number\">2</th><td>Female</td>"_s,
          u"<span class=\"role\">record code</span>"_s, u"<span class=\"role\">weight</span>"_s,
          u"<p class=\"text\">Given\nby the office.</p>"_s})
        QVERIFY2(html.contains(text), qPrintable(text));
}

void tst_Codebook::leavesOutWhatIsNotThere()
{
    const auto root = std::make_unique<TDcEntity>();
    root->setName(u"EMPTY"_s);
    root->addVariables(new TDcVariable);
    const QString html = body(root.get());
    QVERIFY(html.contains("<h1>EMPTY</h1>"_L1));
    for (const auto text : {"Missing"_L1, "Valid range"_L1, "Categories"_L1, "<p class=\"text\">"_L1,
                            "Decimals"_L1, "class=\"role\""_L1})
        QVERIFY2(!html.contains(text), text.data());
}

void tst_Codebook::anEmptyEntitySaysSo()
{
    const auto root = std::make_unique<TDcEntity>();
    root->setName(u"EMPTY"_s);
    const QString html = body(root.get());
    QVERIFY(html.contains("<p class=\"extent\">This entity has no variables.</p>"_L1));
    QVERIFY(html.contains("\">EMPTY</h2>"_L1)); // Its name stands there once.
    QVERIFY(!page(make().get()).contains("no variables"_L1));
    QVERIFY(page(make().get()).contains(" <code>PERSON</code></h2>"_L1));
}

void tst_Codebook::takesTitleAndLanguage()
{
    CodebookOptions options;
    options.title = u"Encuesta 2020"_s;
    options.language = u"es"_s;
    const QString html = page(make().get(), options);
    QVERIFY(html.contains("<html lang=\"es\">"_L1));
    QVERIFY(html.contains("<h1>Encuesta 2020</h1>"_L1));
    QVERIFY(html.contains("<title>Codebook: Encuesta 2020</title>"_L1));
}

void tst_Codebook::nullsAreNoTrouble()
{
    QVERIFY(page(nullptr).contains("Entities: 0. Variables: 0."_L1));
    const auto root = make();
    root->getChildren()->append(nullptr);
    root->getVariables()->prepend(nullptr);
    root->getVariables()->last()->getMetadataVariables()->addItemRange(nullptr);
    root->getVariables()->last()->getValueLabelElementList()->append(nullptr);
    QCOMPARE(Codebook::html(root.get()), Codebook::html(make().get()));
    root->getVariables()->last()->setMetadataVariables(nullptr);
    QVERIFY(page(root.get()).contains("WGT"_L1));
    QVERIFY(!pdf(root.get()).isEmpty());
    QVERIFY(!pdf(nullptr).isEmpty());
}

void tst_Codebook::aDeepChainIsNoTrouble()
{
    const auto root = std::make_unique<TDcEntity>();
    TDcEntity *last = root.get();
    for (int level = 2; level <= 100000; ++level) {
        auto *child = new TDcEntity;
        last->getChildren()->append(child);
        last = child;
    }
    QCOMPARE(Codebook::html(root.get()).count("<section"), 100000);
}

void tst_Codebook::writesPdf()
{
    const QByteArray bytes = pdf(make().get());
    QVERIFY(bytes.startsWith("%PDF-"));
    QVERIFY(bytes.trimmed().endsWith("%%EOF"));
    QCOMPARE(bytes.count("/Type /Page\n"), 3); // the title with the contents, and two entities
}

void tst_Codebook::pdfGrowsWithTheDictionary()
{
    const auto root = make();
    for (int i = 0; i < 200; ++i)
        addVariable(*root, u"V%1"_s.arg(i), u"Variable"_s, u"STRING"_s, 20 + i, 1);
    QVERIFY(pdf(root.get()).count("/Type /Page\n") > 6);
}

void tst_Codebook::aPdfPageHoldsNothingOfTheNext()
{
    const QStringList pages = drawings(pdf(make().get()));
    QCOMPARE(pages.size(), 3);
    const auto [lines, height] = baselines(pages.first());
    QVERIFY(height > 1000);
    const double bottom = height;
    QVERIFY(std::any_of(lines.cbegin(), lines.cend(), [bottom](double line) { return line < bottom; }));
    QSet<double> below;
    for (const double line : lines) {
        if (line > height)
            below.insert(line);
    }
    QCOMPARE(below.size(), 1); // The title and the number of the page.
}

void tst_Codebook::saysWhenPdfCannotBeWritten()
{
    FullDevice device;
    QVERIFY(device.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    QCOMPARE(Codebook::writePdf(make().get(), device), u"No space left on device"_s);
}

QTEST_MAIN(tst_Codebook)
#include "tst_codebook.moc"
