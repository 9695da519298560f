#include "workbench/run/EntitiesPage.h"

#include "model/ConfigEntities.h"
#include "model/TDcEntity.h"
#include "models/dictionaryTreeModelDownload.h"
#include "workbench/panels/Widgets.h"
#include "workbench/run/EntityChoiceProxy.h"
#include "workbench/run/RunDraft.h"
#include "workbench/run/RunWords.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;

EntitiesPage::EntitiesPage(RunDraft *draft, QWidget *parent)
    : RunPage(draft, parent), m_proxy(new EntityChoiceProxy(this)), m_view(new QTreeView(this)),
      m_settings(new QGroupBox(this)), m_recType(new QLineEdit(this)),
      m_checkSequence(new QCheckBox(tr("Check the se&quence of its records"), this)),
      m_createSdc(new QCheckBox(tr("Create S&DC"), this)),
      m_checkDelete(new QCheckBox(tr("Mar&k for deletion"), this))
{
    setObjectName(u"runEntitiesPage"_s);
    setTitle(tr("Entities"));
    setSubTitle(tr("Tick the entities that take part. Space switches the tick of the current one."));

    m_proxy->setSourceModel(new dictionaryTreeModelDownload(this, draft->root()));
    auto *row = new QHBoxLayout;
    row->addWidget(makeTree(), 1);
    row->addWidget(makeSettings(), 1);
    auto *column = new QVBoxLayout(this);
    column->addLayout(row);
    column->addWidget(problemRow());

    connect(m_proxy, &EntityChoiceProxy::marksChanged, this, &EntitiesPage::showSettings);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &EntitiesPage::showSettings);
    m_view->setCurrentIndex(m_proxy->index(0, 0));
}

QWidget *EntitiesPage::makeTree()
{
    Widgets::setUpTree(m_view, tr("Entities"));
    m_view->setModel(m_proxy);
    m_view->expandAll();
    auto *caption = new QLabel(tr("&Entities"));
    caption->setBuddy(m_view);
    auto *all = new QPushButton(tr("Select &All"));
    auto *none = new QPushButton(tr("Select N&one"));
    connect(all, &QPushButton::clicked, this, [this] { chooseAll(true); });
    connect(none, &QPushButton::clicked, this, [this] { chooseAll(false); });

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(all);
    buttons->addWidget(none);
    buttons->addStretch();
    auto *side = new QWidget(this);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(caption);
    column->addWidget(m_view);
    column->addLayout(buttons);
    setTabOrder(m_view, all);
    setTabOrder(all, none);
    setTabOrder(none, m_recType);
    return side;
}

QWidget *EntitiesPage::makeSettings()
{
    auto *form = new QFormLayout(m_settings);
    form->addRow(tr("&Record type"), m_recType);
    form->addRow(m_checkSequence);
    form->addRow(m_createSdc);
    form->addRow(m_checkDelete);
    // Only what a person does is written; showing another entity is not.
    connect(m_recType, &QLineEdit::textEdited, this,
            [this](const QString &text) { draft().settings(current()).setRecType(text); });
    connect(m_checkSequence, &QCheckBox::clicked, this,
            [this](bool checked) { draft().settings(current()).setCheckSequence(checked); });
    connect(m_createSdc, &QCheckBox::clicked, this,
            [this](bool checked) { draft().settings(current()).setCreateSDC(checked); });
    connect(m_checkDelete, &QCheckBox::clicked, this, [this](bool checked) {
        draft().setCheckDelete(current(), checked);
        m_view->viewport()->update();
    });
    auto *side = new QWidget(this);
    auto *column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(m_settings);
    column->addStretch();
    return side;
}

QString EntitiesPage::problem() const
{
    return RunWords::entitiesProblem(draft());
}

void EntitiesPage::chooseAll(bool takePart)
{
    draft().chooseEntities(takePart);
    m_proxy->announceMarks();
}

TDcEntity *EntitiesPage::current() const
{
    return static_cast<TDcEntity *>(m_view->currentIndex().internalPointer());
}

void EntitiesPage::showSettings()
{
    showProblem();
    const TDcEntity *entity = current();
    m_settings->setEnabled(entity && entity->getSelectable());
    if (!entity)
        return;
    const ConfigEntities &settings = draft().settings(entity);
    m_settings->setTitle(entity->getSelectable() ? tr("How %1 takes part").arg(entity->getName())
                                                 : tr("%1 does not take part").arg(entity->getName()));
    if (m_recType->text() != settings.getRecType())
        m_recType->setText(settings.getRecType());
    m_checkSequence->setChecked(settings.getCheckSequence());
    m_createSdc->setChecked(settings.getCreateSDC());
    m_checkDelete->setChecked(settings.getCheckDelete());
}
