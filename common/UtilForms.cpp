#include "common/UtilForms.h"

#include <QMessageBox>

namespace
{
constexpr int Yes = 2;
static_assert(Yes != UtilForms::CANCELED && Yes != UtilForms::NO);

void showMessage(QMessageBox::Icon icon, const QString &title, const QString &text)
{
    QMessageBox box(icon, title, text, QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Ok);
    box.setEscapeButton(QMessageBox::Ok);
    box.exec();
}
} // namespace

void UtilForms::showErrorMessage(QString text)
{
    showMessage(QMessageBox::Critical, tr("Error"), text);
}

void UtilForms::showInfoMessage(QString text)
{
    showMessage(QMessageBox::Information, tr("Information"), text);
}

int UtilForms::displayYesNoCancelMessageBox(QWidget *parent, QString title, QString text)
{
    QMessageBox box(QMessageBox::Question, title, text,
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::Cancel);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Yes;
    case QMessageBox::No:
        return NO;
    default:
        return CANCELED;
    }
}
