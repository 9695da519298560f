#include "workbench/panels/Inspector.h"

#include "workbench/panels/RangesPanel.h"
#include "workbench/panels/ValueLabelsPanel.h"
#include "workbench/panels/VariableForm.h"

#include <QSettings>

using namespace Qt::Literals::StringLiterals;

namespace
{
QString settingsKey()
{
    return u"inspector"_s;
}
} // namespace

Inspector::Inspector(const Workspace &workspace, QWidget *parent)
    : QSplitter(Qt::Vertical, parent), m_form(new VariableForm(workspace, this)),
      m_valueLabels(new ValueLabelsPanel(workspace, this)), m_ranges(new RangesPanel(workspace, this))
{
    setChildrenCollapsible(false);
    addWidget(m_form);
    addWidget(m_valueLabels);
    addWidget(m_ranges);
    setSizes({360, 180, 120});
    restoreState(QSettings().value(settingsKey()).toByteArray());
    setChildrenCollapsible(false); // Whatever the settings say.
}

Inspector::~Inspector()
{
    QSettings().setValue(settingsKey(), saveState());
}

void Inspector::showItem(void *item)
{
    m_valueLabels->select({item});
    m_ranges->select({item});
}
