#pragma once

#include "common/utilitarian_export.h"

#include <QList>
#include <QObject>
#include <QString>

/// Checks names and texts. True means that the input passes; no check shows a message.
class UTILITARIAN_EXPORT Validate : public QObject
{
    Q_OBJECT

public:
    Validate() = default;

    /// Whether \a s holds more than blanks.
    [[nodiscard]] bool validateEmpty(QString s);
    /// Whether \a s, surrounding blanks aside, begins with a letter or an underscore; the rest is not looked
    /// at.
    [[nodiscard]] bool validateName(const QString &s);
    /// Whether \a s, surrounding blanks aside, consists of letters, digits and underscores (of any script).
    [[nodiscard]] bool validateStringC(QString s);
    /// Whether \a s occurs in \a list, letter case and surrounding blanks aside.
    [[nodiscard]] bool compare(QList<QString> list, QString s);
};
