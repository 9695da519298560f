#pragma once

#include "documents/codebook/internal/CodebookContent.h"

class QIODevice;

/// Writes a codebook as pages of paper.
class CodebookPaper
{
    Q_DECLARE_TR_FUNCTIONS(Codebook)

public:
    explicit CodebookPaper(const CodebookContent &content) : m_content(content) { }

    /// Returns what went wrong, empty when nothing did.
    [[nodiscard]] QString write(QIODevice &device) const;

private:
    /// The whole text. The contents show \a pages, the page of each chapter; where there are none a blank.
    [[nodiscard]] QString text(const QList<int> &pages) const;
    [[nodiscard]] QString contents(const QList<int> &pages) const;
    [[nodiscard]] static QString chapterText(const CodebookContent::Chapter &chapter, qsizetype number);
    [[nodiscard]] static QString variableText(const TDcEntity &entity, const TDcVariable &variable);

    const CodebookContent &m_content;
};
