#pragma once

#include "model/TDcEntity.h"
#include "model/TDcVariable.h"
#include "model/ValueLabelElement.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <vector>

struct CodebookOptions;

/// What a codebook says, whatever it is written as. Holds no nulls.
class CodebookContent
{
    Q_DECLARE_TR_FUNCTIONS(Codebook)

public:
    struct Fact {
        QString name;
        QString value;
    };
    struct Chapter {
        const TDcEntity *entity;
        const TDcEntity *parent; ///< Null for the root.
        int depth; ///< 0 for the root.
        QList<const TDcVariable *> variables;
    };

    CodebookContent(const TDcEntity *root, const CodebookOptions &options);

    [[nodiscard]] QString title() const { return m_title; }
    [[nodiscard]] const std::vector<Chapter> &chapters() const { return m_chapters; }
    /// How much there is, in words.
    [[nodiscard]] QString extent() const;

    /// The label of \a entity or, where there is none, its name.
    [[nodiscard]] static QString heading(const TDcEntity &entity);
    /// The name of \a entity where the heading does not tell it.
    [[nodiscard]] static QString nameBesideHeading(const TDcEntity &entity);
    /// What stands in the place of the variables where there are none.
    [[nodiscard]] static QString nothing() { return tr("This entity has no variables."); }
    [[nodiscard]] static QList<Fact> facts(const Chapter &chapter);
    [[nodiscard]] static QList<Fact> facts(const TDcVariable &variable);
    [[nodiscard]] static QString typeName(const TDcVariable &variable);
    /// Where the values lie in the record: "4-9". Empty when not known.
    [[nodiscard]] static QString position(const TDcVariable &variable);
    /// What part the variable plays in its entity: its code, its label, its weight. Mostly empty.
    [[nodiscard]] static QString role(const TDcEntity &entity, const TDcVariable &variable);
    [[nodiscard]] static QList<const ValueLabelElement *> categories(const TDcVariable &variable);

private:
    QString m_title;
    std::vector<Chapter> m_chapters;
    qsizetype m_variables = 0;
};
