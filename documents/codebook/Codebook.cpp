#include "documents/codebook/Codebook.h"

#include "documents/codebook/internal/CodebookPage.h"
#include "documents/codebook/internal/CodebookPaper.h"

QByteArray Codebook::html(const TDcEntity *root, const CodebookOptions &options)
{
    const CodebookContent content(root, options);
    return CodebookPage(content).write(options.language).toUtf8();
}

QString Codebook::writePdf(const TDcEntity *root, QIODevice &device, const CodebookOptions &options)
{
    const CodebookContent content(root, options);
    return CodebookPaper(content).write(device);
}
