#include "workbench/run/DescriptionPage.h"

#include "model/Config.h"
#include "workbench/panels/Widgets.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/RunWords.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

DescriptionPage::DescriptionPage(RunDraft *draft, QWidget *parent) : RunPage(draft, parent)
{
    using Db = ConfigDb;
    setObjectName(u"runDescriptionPage"_s);
    setTitle(tr("The Run"));
    setSubTitle(tr("What the run is called, who makes it, and where its data come from."));

    auto *fields = new QWidget;
    auto *top = new QVBoxLayout(fields);
    auto *form = new QFormLayout;
    top->addLayout(form);
    top->addStretch(); // Not between the rows.
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addUnknown(form);
    QLineEdit *name = addText<&Db::getName, &Db::setName>(form, tr("Na&me"));
    name->setObjectName(u"name"_s);
    form->addRow(QString(), problemRow());
    connect(name, &QLineEdit::textChanged, this, [this, name] {
        showProblem();
        name->setAccessibleDescription(problem());
    });
    addText<&Db::getLabel, &Db::setLabel>(form, tr("&Label"))->setObjectName(u"label"_s);
    addText<&Db::getAuthor, &Db::setAuthor>(form, tr("&Author"))->setObjectName(u"author"_s);
    addText<&Db::getProject, &Db::setProject>(form, tr("&Project"))->setObjectName(u"project"_s);
    addPath<&Db::getFolder, &Db::setFolder>(form, tr("F&older"), tr("Choose the Folder"), true);
    addPath<&Db::getSourceFile, &Db::setSourceFile>(form, tr("&Source file"), tr("Choose the Source File"),
                                                    false);
    addText<&Db::getFilter, &Db::setFilter>(form, tr("Fil&ter"))->setObjectName(u"filter"_s);
    addText<&Db::getSelectFilter, &Db::setSelectFilter>(form, tr("Sele&ction filter"));
    addText<&Db::getFileFilter, &Db::setFileFilter>(form, tr("F&ile filter"));
    QLineEdit *password = addText<&Db::getPassword, &Db::setPassword>(form, tr("Pass&word"));
    password->setObjectName(u"password"_s);
    password->setEchoMode(QLineEdit::Password);
    password->setPlaceholderText(tr("None. With one, only you will be able to read the file."));
    addOption<&ConfigOptions::getCreateNoRanges, &ConfigOptions::setCreateNoRanges>(form,
                                                                                    tr("Create no &ranges"));
    addOption<&ConfigOptions::getCreateNotAppMissingInRange, &ConfigOptions::setCreateNotAppMissingInRange>(
        form, tr("Put the codes for not applicable an&d missing into the ranges"));

    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(Widgets::scrolled(fields, this));
}

QString DescriptionPage::problem() const
{
    return RunWords::nameProblem(draft());
}

void DescriptionPage::addUnknown(QFormLayout *form)
{
    const QStringList unknown = RunWords::unknown(draft());
    if (unknown.isEmpty())
        return;
    auto *heading = new QLabel(tr("The file speaks of what the open dictionary does not have. It is not "
                                  "offered here and stays in the file as it is."));
    heading->setWordWrap(true);
    auto *list = new QPlainTextEdit(unknown.join(u'\n'));
    list->setObjectName(u"unknown"_s);
    list->setAccessibleName(tr("What the dictionary does not have"));
    list->setReadOnly(true);
    list->setTabChangesFocus(true);
    list->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    const int lines = int(std::clamp<qsizetype>(unknown.size(), 2, 4));
    list->setFixedHeight(list->fontMetrics().lineSpacing() * lines + 12);
    form->addRow(heading);
    form->addRow(list);
}

template <auto Get, auto Set>
QLineEdit *DescriptionPage::makeText()
{
    auto *field = new QLineEdit((draft().dataBase().*Get)());
    connect(field, &QLineEdit::textChanged, this,
            [this](const QString &text) { (draft().dataBase().*Set)(text); });
    return field;
}

template <auto Get, auto Set>
QLineEdit *DescriptionPage::addText(QFormLayout *form, const QString &label)
{
    QLineEdit *field = makeText<Get, Set>();
    form->addRow(label, field);
    return field;
}

template <auto Get, auto Set>
void DescriptionPage::addPath(QFormLayout *form, const QString &label, const QString &title, bool folder)
{
    QLineEdit *field = makeText<Get, Set>();
    auto *caption = new QLabel(label);
    caption->setBuddy(field);
    auto *button = new QToolButton;
    button->setText(u"…"_s);
    button->setToolTip(title);
    button->setAccessibleName(title);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, [this, field, title, folder] {
        const QString path = folder ? QFileDialog::getExistingDirectory(this, title, field->text())
                                    : QFileDialog::getOpenFileName(this, title, field->text());
        if (!path.isEmpty())
            field->setText(path);
    });
    auto *row = new QHBoxLayout;
    row->addWidget(field);
    row->addWidget(button);
    form->addRow(caption, row);
}

template <auto Get, auto Set>
void DescriptionPage::addOption(QFormLayout *form, const QString &caption)
{
    auto *box = new QCheckBox(caption);
    box->setChecked((draft().options().*Get)());
    connect(box, &QCheckBox::toggled, this, [this](bool checked) { (draft().options().*Set)(checked); });
    form->addRow(QString(), box);
}
