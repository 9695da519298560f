#pragma once

#include "documents/documents_export.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

class QIODevice;
class TDcEntity;

/// What a codebook says beside the dictionary itself.
struct CodebookOptions {
    QString title; ///< Empty: the label of the root entity, or its name.
    QString language =
        QStringLiteral("en"); ///< Of the texts, as a tag such as "es"; for readers and printers.
};

/// A description of a dictionary for people: what there is, what it is called and which codes mean what.
class DOCUMENTS_EXPORT Codebook
{
    Q_DECLARE_TR_FUNCTIONS(Codebook)

public:
    /// One HTML page in UTF-8 that needs nothing else: contents, a search box, styles for the screen (light
    /// and dark) and for paper. The same dictionary gives the same bytes. A null root gives an empty page.
    [[nodiscard]] static QByteArray html(const TDcEntity *root, const CodebookOptions &options = {});

    /// Writes a PDF document on A4 with contents and page numbers into \a device, which is open. Needs a
    /// QGuiApplication. Returns what went wrong, empty when nothing did.
    [[nodiscard]] static QString writePdf(const TDcEntity *root, QIODevice &device,
                                          const CodebookOptions &options = {});
};
