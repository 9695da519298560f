#pragma once

#include "documents/codebook/internal/CodebookContent.h"

/// Writes a codebook as a page for browsers.
class CodebookPage
{
    Q_DECLARE_TR_FUNCTIONS(Codebook)

public:
    explicit CodebookPage(const CodebookContent &content) : m_content(content) { }

    [[nodiscard]] QString write(const QString &language);

private:
    void writeHead(const QString &language);
    void writeContents();
    void writeChapter(const CodebookContent::Chapter &chapter, qsizetype number);
    void writeOverview(const CodebookContent::Chapter &chapter, const QString &id);
    void writeVariable(const TDcEntity &entity, const TDcVariable &variable, const QString &id);
    void writeFacts(const QList<CodebookContent::Fact> &facts);
    void writeDocumentation(const QString &text);

    const CodebookContent &m_content;
    QString m_html;
};
