#include "documents/codebook/internal/CodebookPage.h"

#include "documents/codebook/internal/CodebookStyle.h"
#include "documents/codebook/internal/HtmlText.h"

using namespace Qt::Literals::StringLiterals;

namespace
{
/// Whether all codes are numbers, which are set to the right.
bool areNumbers(const QList<const ValueLabelElement *> &categories)
{
    return std::all_of(categories.cbegin(), categories.cend(), [](const ValueLabelElement *element) {
        bool ok = false;
        (void)element->getValue().toDouble(&ok);
        return ok;
    });
}
} // namespace

QString CodebookPage::write(const QString &language)
{
    writeHead(language);
    m_html += "<header>\n<p class=\"extent\">"_L1 + htmlText(tr("Codebook")) + "</p>\n<h1>"_L1
        + htmlText(m_content.title()) + "</h1>\n<p class=\"extent\">"_L1 + htmlText(m_content.extent())
        + "</p>\n</header>\n"_L1;
    writeContents();
    m_html += "<main id=\"main\">\n"_L1;
    qsizetype number = 0;
    for (const CodebookContent::Chapter &chapter : m_content.chapters())
        writeChapter(chapter, ++number);
    m_html += "</main>\n</div>\n<script>"_L1 + CodebookStyle::script + "</script>\n</body>\n</html>\n"_L1;
    return std::move(m_html);
}

void CodebookPage::writeHead(const QString &language)
{
    m_html += "<!DOCTYPE html>\n<html lang=\""_L1 + htmlText(language)
        + "\">\n<head>\n<meta charset=\"utf-8\">\n"
          "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
          "<meta name=\"color-scheme\" content=\"light dark\">\n<title>"_L1
        + htmlText(tr("Codebook: %1").arg(m_content.title())) + "</title>\n<style>"_L1 + CodebookStyle::css
        + "</style>\n</head>\n<body>\n<a class=\"skip\" href=\"#main\">"_L1
        + htmlText(tr("Skip to the content")) + "</a>\n<div class=\"frame\">\n"_L1;
}

void CodebookPage::writeContents()
{
    m_html += "<nav aria-label=\""_L1 + htmlText(tr("Contents"))
        + "\">\n<div class=\"search\" role=\"search\" hidden>\n<label for=\"search\">"_L1
        + htmlText(tr("Search variables"))
        + "</label>\n<input id=\"search\" type=\"search\" autocomplete=\"off\" aria-describedby=\"found\">\n"
          "<div id=\"found\" role=\"status\" data-text=\""_L1
        + htmlText(tr("Variables found: %1")) + "\"></div>\n</div>\n<h2>"_L1 + htmlText(tr("Contents"))
        + "</h2>\n"_L1;
    int depth = -1;
    qsizetype number = 0;
    for (const CodebookContent::Chapter &chapter : m_content.chapters()) {
        if (chapter.depth > depth)
            m_html += "<ul>\n"_L1;
        else
            m_html += "</li>\n"_L1 + QString("</ul>\n</li>\n"_L1).repeated(depth - chapter.depth);
        depth = chapter.depth;
        m_html += "<li><a href=\"#e"_L1 + QString::number(++number) + "\">"_L1
            + htmlText(CodebookContent::heading(*chapter.entity)) + "</a> <span class=\"count\">"_L1
            + QString::number(chapter.variables.size()) + "</span>\n"_L1;
    }
    if (depth >= 0)
        m_html += "</li>\n"_L1 + QString("</ul>\n</li>\n"_L1).repeated(depth) + "</ul>\n"_L1;
    m_html += "</nav>\n"_L1;
}

void CodebookPage::writeChapter(const CodebookContent::Chapter &chapter, qsizetype number)
{
    const QString id = QString::number(number);
    m_html += "<section id=\"e"_L1 + id + "\" aria-labelledby=\"h"_L1 + id + "\">\n<h2 id=\"h"_L1 + id
        + "\">"_L1 + htmlText(CodebookContent::heading(*chapter.entity));
    if (const QString name = CodebookContent::nameBesideHeading(*chapter.entity); !name.isEmpty())
        m_html += " <code>"_L1 + htmlText(name) + "</code>"_L1;
    m_html += "</h2>\n"_L1;
    writeDocumentation(chapter.entity->getDocumentationEntity());
    writeFacts(CodebookContent::facts(chapter));
    writeOverview(chapter, id);
    qsizetype variable = 0;
    for (const TDcVariable *item : chapter.variables)
        writeVariable(*chapter.entity, *item, id + u'-' + QString::number(++variable));
    m_html += "</section>\n"_L1;
}

void CodebookPage::writeOverview(const CodebookContent::Chapter &chapter, const QString &id)
{
    if (chapter.variables.isEmpty()) {
        m_html += "<p class=\"extent\">"_L1 + htmlText(CodebookContent::nothing()) + "</p>\n"_L1;
        return;
    }
    m_html += "<div class=\"overview wide\">\n<table>\n<caption>"_L1 + htmlText(tr("Variables"))
        + "</caption>\n"
          "<thead><tr><th scope=\"col\">"_L1
        + htmlText(tr("Name")) + "</th><th scope=\"col\">"_L1 + htmlText(tr("Label"))
        + "</th><th scope=\"col\">"_L1 + htmlText(tr("Type")) + "</th><th scope=\"col\" class=\"number\">"_L1
        + htmlText(tr("Position")) + "</th></tr></thead>\n<tbody>\n"_L1;
    qsizetype number = 0;
    for (const TDcVariable *variable : chapter.variables) {
        const QString variableId = id + u'-' + QString::number(++number);
        m_html += "<tr id=\"r"_L1 + variableId + "\"><th scope=\"row\"><a class=\"code\" href=\"#v"_L1
            + variableId + "\">"_L1 + htmlText(variable->getName()) + "</a></th><td>"_L1
            + htmlText(variable->getLabel()) + "</td><td>"_L1 + htmlText(CodebookContent::typeName(*variable))
            + "</td><td class=\"number\">"_L1 + CodebookContent::position(*variable) + "</td></tr>\n"_L1;
    }
    m_html += "</tbody>\n</table>\n</div>\n"_L1;
}

void CodebookPage::writeVariable(const TDcEntity &entity, const TDcVariable &variable, const QString &id)
{
    m_html += "<article id=\"v"_L1 + id + "\">\n<h3><code>"_L1 + htmlText(variable.getName()) + "</code> "_L1
        + htmlText(variable.getLabel());
    if (const QString role = CodebookContent::role(entity, variable); !role.isEmpty())
        m_html += " <span class=\"role\">"_L1 + htmlText(role) + "</span>"_L1;
    m_html += "</h3>\n"_L1;
    writeDocumentation(variable.getDocumentation());
    writeFacts(CodebookContent::facts(variable));
    if (const auto categories = CodebookContent::categories(variable); !categories.isEmpty()) {
        const auto cell = areNumbers(categories) ? "<th scope=\"row\" class=\"code number\">"_L1
                                                 : "<th scope=\"row\" class=\"code\">"_L1;
        m_html += "<div class=\"wide\"><table class=\"codes\">\n<caption>"_L1 + htmlText(tr("Categories"))
            + "</caption>\n<thead><tr><th scope=\"col\">"_L1 + htmlText(tr("Code"))
            + "</th><th scope=\"col\">"_L1 + htmlText(tr("Label")) + "</th></tr></thead>\n<tbody>\n"_L1;
        for (const ValueLabelElement *element : categories)
            m_html += "<tr>"_L1 + cell + htmlText(element->getValue()) + "</th><td>"_L1
                + htmlText(element->getLabel()) + "</td></tr>\n"_L1;
        m_html += "</tbody>\n</table></div>\n"_L1;
    }
    m_html += "</article>\n"_L1;
}

void CodebookPage::writeFacts(const QList<CodebookContent::Fact> &facts)
{
    if (facts.isEmpty())
        return;
    m_html += "<dl>\n"_L1;
    for (const CodebookContent::Fact &fact : facts)
        m_html +=
            "<div><dt>"_L1 + htmlText(fact.name) + "</dt><dd>"_L1 + htmlText(fact.value) + "</dd></div>\n"_L1;
    m_html += "</dl>\n"_L1;
}

void CodebookPage::writeDocumentation(const QString &text)
{
    if (!text.trimmed().isEmpty())
        m_html += "<p class=\"text\">"_L1 + htmlText(text) + "</p>\n"_L1;
}
