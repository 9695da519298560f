#pragma once

#include <QList>
#include <QString>

class TDcEntity;

namespace Cli
{
class Output;

/// An entity and the one it stands below; a root has none. Neither is owned.
struct ShownEntity {
    const TDcEntity *entity;
    const TDcEntity *parent;
};

/// Prints \a entities, in the order of the tree, for a person: the tree, then a table of variables for each.
void showAsText(const QString &path, const QList<ShownEntity> &entities, Output &output);
} // namespace Cli
