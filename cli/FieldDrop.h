#pragma once

#include "models/DatasetPropertiesFieldsModel.h"
#include "models/VariableDiccionaryModel.h"

#include <QStringList>

namespace Cli
{
/// Drops the fields of a data source onto an entity without variables, as a person would who selects them
/// all, but without any question: where a drop would ask, this fails.
class FieldDrop
{
public:
    /// \a record is the one whose fields are dropped, "*" for all. Entity and fields must outlive this.
    FieldDrop(TDcEntity &entity, QList<TDcSourceField *> &fields, const QString &record);

    void splitNamesAt(const QString &splitter) { m_target.setSplitterCharacter(splitter); }
    void keepNamesWhole() { m_target.setSplitterEnabled(false); }

    /// Makes the variables. The result says which came out under another name or under one that others have.
    /// Throws Failure when two fields make the same variable; then the entity is as it was.
    QStringList run();

private:
    [[nodiscard]] QStringList payload() const;
    [[nodiscard]] QString hint() const;
    void refuseTwins(const QList<TDcVariable *> &variables) const;

    TDcEntity &m_entity;
    DatasetPropertiesFieldsModel m_source;
    VariableDiccionaryModel m_target;
};
} // namespace Cli
