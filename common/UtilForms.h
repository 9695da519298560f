#pragma once

#include "common/utilitarian_export.h"

#include <QCoreApplication>
#include <QString>

class QWidget;

/// Modal message boxes. Texts are shown as given, never as markup; callers translate them.
class UTILITARIAN_EXPORT UtilForms
{
    Q_DECLARE_TR_FUNCTIONS(UtilForms)

public:
    /// Answers of displayYesNoCancelMessageBox(); any other answer is yes.
    static constexpr int CANCELED = 0;
    static constexpr int NO = 1;

    /// Shows \a text as an error and returns when it is acknowledged.
    static void showErrorMessage(QString text);
    /// Shows \a text as information and returns when it is acknowledged.
    static void showInfoMessage(QString text);
    /// Asks a question over \a parent, which may be null. Escape and closing the box mean CANCELED.
    static int displayYesNoCancelMessageBox(QWidget *parent, QString title, QString text);
};
