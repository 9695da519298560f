#include "documents/codebook/internal/CodebookPaper.h"

#include "documents/codebook/internal/HtmlText.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>

using namespace Qt::Literals::StringLiterals;

namespace
{
constexpr int Resolution = 300;
constexpr QMarginsF Margins(18, 20, 18, 20); ///< Millimetres.
constexpr double FooterHeight = 8; ///< Millimetres, inside the bottom margin.
constexpr auto ChapterAnchor = "chapter-"_L1;

// Lengths of tables are understood in pixels only.
constexpr auto css = R"(
body{font-size:9pt;color:#111}
h1{font-size:20pt;margin-bottom:4px}
h2{font-size:15pt;color:#0b3f70;margin-top:0;margin-bottom:4px}
p{margin-top:2px;margin-bottom:8px}
.soft{color:#555;font-size:8pt}
.heading{background-color:#e8edf3}
.name{font-family:'DejaVu Sans Mono',monospace;color:#0b3f70}
td,th{padding-left:6px;padding-right:10px;padding-top:2px;padding-bottom:2px}
)"_L1;

int millimetres(double length)
{
    return int(length / 25.4 * Resolution);
}

/// Text with its line breaks.
QString lines(const QString &text)
{
    return htmlText(text).replace(u'\n', "<br>"_L1);
}

QString paragraph(const QString &text)
{
    return text.trimmed().isEmpty() ? QString() : "<p>"_L1 + text + "</p>"_L1;
}

QString namedParagraph(const QString &name)
{
    return name.isEmpty() ? QString() : "<p class=\"name\">"_L1 + htmlText(name) + "</p>"_L1;
}

/// Short texts stay in one line.
QString unbroken(const QString &text)
{
    constexpr qsizetype Longest = 30;
    const QString html = htmlText(text);
    return text.size() > Longest ? html
                                 : QString(html).replace(u' ', "&nbsp;"_L1).replace(u'–', u"\u2060–\u2060"_s);
}

/// All facts in one paragraph, since most are short.
QString factLine(const QList<CodebookContent::Fact> &facts)
{
    QStringList parts;
    for (const CodebookContent::Fact &fact : facts)
        parts.append("<span class=\"soft\">"_L1 + htmlText(fact.name) + "</span>&nbsp;"_L1
                     + unbroken(fact.value));
    return parts.join(" &nbsp; "_L1);
}

/// The page, counted from 1, on which each chapter begins.
QList<int> chapterPages(const QTextDocument &document, qsizetype chapters)
{
    QList<int> pages(chapters, 0);
    const double height = document.pageSize().height();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const QStringList names = fragment.fragment().charFormat().anchorNames();
            for (const QString &name : names) {
                if (name.startsWith(ChapterAnchor))
                    pages[QStringView(name).mid(ChapterAnchor.size()).toInt() - 1] =
                        int(document.documentLayout()->blockBoundingRect(block).top() / height) + 1;
            }
        }
    }
    return pages;
}
} // namespace

QString CodebookPaper::contents(const QList<int> &pages) const
{
    QString rows;
    qsizetype number = 0;
    for (const CodebookContent::Chapter &chapter : m_content.chapters()) {
        const QString page = pages.isEmpty() ? u"0000"_s : QString::number(pages.at(number));
        ++number;
        rows += "<tr><td>"_L1 + QString("&nbsp;&nbsp;&nbsp;&nbsp;"_L1).repeated(chapter.depth)
            + htmlText(CodebookContent::heading(*chapter.entity)) + "</td><td class=\"name\">"_L1
            + htmlText(CodebookContent::nameBesideHeading(*chapter.entity)) + "</td><td align=\"right\">"_L1
            + htmlText(tr("Variables: %1").arg(chapter.variables.size())) + "</td><td align=\"right\">"_L1
            + page + "</td></tr>"_L1;
    }
    return "<h2>"_L1 + htmlText(tr("Contents")) + "</h2><table cellspacing=\"0\" width=\"100%\">"_L1 + rows
        + "</table>"_L1;
}

QString CodebookPaper::variableText(const TDcEntity &entity, const TDcVariable &variable)
{
    // One table for all: its heading is repeated where a page breaks it.
    const QString role = CodebookContent::role(entity, variable);
    QString text = "<table width=\"100%\" cellspacing=\"0\"><thead><tr><th class=\"heading\" align=\"left\" "
                   "colspan=\"2\">"
                   "<span class=\"name\">"_L1
        + htmlText(variable.getName()) + "</span>&nbsp; "_L1 + htmlText(variable.getLabel());
    if (!role.isEmpty())
        text += " &nbsp;<span class=\"soft\">"_L1 + htmlText(role) + "</span>"_L1;
    text += "</th></tr></thead>"_L1;
    if (!variable.getDocumentation().trimmed().isEmpty())
        text += "<tr><td colspan=\"2\">"_L1 + lines(variable.getDocumentation()) + "</td></tr>"_L1;
    text += "<tr><td colspan=\"2\">"_L1 + factLine(CodebookContent::facts(variable)) + "</td></tr>"_L1;
    const auto categories = CodebookContent::categories(variable);
    for (const ValueLabelElement *element : categories)
        text += "<tr><td width=\"14%\" class=\"name\">"_L1 + htmlText(element->getValue()) + "</td><td>"_L1
            + htmlText(element->getLabel()) + "</td></tr>"_L1;
    return text + "</table><p style=\"font-size:3pt\">&nbsp;</p>"_L1;
}

QString CodebookPaper::chapterText(const CodebookContent::Chapter &chapter, qsizetype number)
{
    QString text = "<h2 style=\"page-break-before:always\"><a name=\""_L1 + ChapterAnchor
        + QString::number(number) + "\">"_L1 + htmlText(CodebookContent::heading(*chapter.entity))
        + "</a></h2>"_L1 + namedParagraph(CodebookContent::nameBesideHeading(*chapter.entity))
        + paragraph(lines(chapter.entity->getDocumentationEntity()))
        + paragraph(factLine(CodebookContent::facts(chapter)));
    if (chapter.variables.isEmpty())
        text += paragraph("<span class=\"soft\">"_L1 + htmlText(CodebookContent::nothing()) + "</span>"_L1);
    for (const TDcVariable *variable : chapter.variables)
        text += variableText(*chapter.entity, *variable);
    return text;
}

QString CodebookPaper::text(const QList<int> &pages) const
{
    QString text = "<p class=\"soft\">"_L1 + htmlText(tr("Codebook")) + "</p><h1>"_L1
        + htmlText(m_content.title()) + "</h1><p class=\"soft\">"_L1 + htmlText(m_content.extent())
        + "</p><p>&nbsp;</p>"_L1 + contents(pages);
    qsizetype number = 0;
    for (const CodebookContent::Chapter &chapter : m_content.chapters())
        text += chapterText(chapter, ++number);
    return text;
}

QString CodebookPaper::write(QIODevice &device) const
{
    // The writer does not say when the device takes no more, so the device gets all at once.
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setResolution(Resolution);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(Margins, QPageLayout::Millimeter);
    writer.setTitle(tr("Codebook: %1").arg(m_content.title()));

    QTextDocument document;
    document.documentLayout()->setPaintDevice(&writer);
    document.setDocumentMargin(0);
    document.setDefaultStyleSheet(css);
    const QSizeF page(writer.width(), writer.height());
    // The first pass finds the pages that the contents of the second one show.
    document.setHtml(text({}));
    document.setPageSize(page);
    const QList<int> pages = chapterPages(document, qsizetype(m_content.chapters().size()));
    document.setHtml(text(pages));
    document.setPageSize(page);

    QPainter painter;
    if (!painter.begin(&writer))
        return tr("The document cannot be written.");
    QFont footer;
    footer.setPointSizeF(8);
    const int count = document.pageCount();
    for (int i = 0; i < count; ++i) {
        if (i > 0)
            writer.newPage();
        painter.save();
        painter.translate(0, -i * page.height());
        const QRectF view(0, i * page.height(), page.width(), page.height());
        painter.setClipRect(view);
        QAbstractTextDocumentLayout::PaintContext context;
        // What only touches the page, as the heading at the top of the next one does, is not drawn on it.
        context.clip = view.adjusted(0, 1, 0, -1);
        context.palette.setColor(QPalette::Text, Qt::black); // the system's colours may be light on dark
        document.documentLayout()->draw(&painter, context);
        painter.restore();
        painter.setFont(footer);
        painter.setPen(Qt::darkGray);
        const QRectF line(0, page.height() + millimetres(4), page.width(), millimetres(FooterHeight));
        painter.drawText(
            line, Qt::AlignLeft | Qt::AlignTop,
            painter.fontMetrics().elidedText(m_content.title(), Qt::ElideRight, int(page.width() * 0.7)));
        painter.drawText(line, Qt::AlignRight | Qt::AlignTop, tr("Page %1 of %2").arg(i + 1).arg(count));
    }
    painter.end();
    return device.write(bytes.data()) == bytes.size() ? QString() : device.errorString();
}
