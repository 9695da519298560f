#include "workbench/run/RunDraft.h"

#include "documents/DictionaryCopy.h"
#include "model/Config.h"
#include "model/PreOrder.h"
#include "model/TDcEntity.h"
#include "model/TDcVariable.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace
{
QSet<QString> namesOf(const QList<TDcVariable *> &variables)
{
    QSet<QString> names;
    for (const TDcVariable *variable : variables)
        names.insert(variable->getName());
    return names;
}

std::unique_ptr<TDcEntity> copyToChooseFrom(const TDcEntity &root)
{
    std::unique_ptr<TDcEntity> copy = DictionaryCopy::copy(root);
    // The layer gives a check box to variables of level 1 alone. Here every variable has one.
    preOrder(copy.get(), [](const TDcEntity *entity) {
        for (TDcVariable *variable : std::as_const(*entity->getVariables()))
            variable->setLevel(1);
    });
    return copy;
}
} // namespace

RunDraft::RunDraft(const TDcEntity &root, const QString &path)
    : m_root(copyToChooseFrom(root)), m_file(std::make_unique<RunConfigurationFile>())
{
    const QList<TDcEntity *> all = entities();
    for (TDcEntity *entity : all) {
        addSettings(entity);
        settings(entity).setCheckDelete(entity->getCheckDelete());
        takeAllVariables(entity, true);
    }
    describe(path);
    m_saved = content();
}

RunDraft::RunDraft(const TDcEntity &root, std::unique_ptr<RunConfigurationFile> file)
    : m_root(copyToChooseFrom(root)), m_file(std::move(file)), m_order(*m_file->config()->getEntities())
{
    // The first entry of a name is for the first entity of that name, and so on.
    QHash<QString, QList<ConfigEntities *>> entries;
    for (ConfigEntities *entry : std::as_const(m_order))
        entries[entry->getName()].append(entry);
    const QList<TDcEntity *> all = entities();
    for (TDcEntity *entity : all) {
        QList<ConfigEntities *> &ofName = entries[entity->getName()];
        entity->setSelectable(!ofName.isEmpty());
        if (ofName.isEmpty())
            addSettings(entity);
        else
            m_settings.insert(entity, ofName.takeFirst());
        readVariables(entity);
    }
    m_saved = content();
}

RunDraft::~RunDraft() = default;

void RunDraft::addSettings(const TDcEntity *entity)
{
    auto settings = std::make_unique<ConfigEntities>();
    settings->setName(entity->getName());
    settings->setAllVariables(true);
    m_order.append(settings.get());
    m_settings.insert(entity, settings.get());
    m_unused.append(std::move(settings));
}

void RunDraft::readVariables(TDcEntity *entity)
{
    const ConfigEntities &from = settings(entity);
    m_named.insert(entity, {.names = *from.getVariables(), .all = from.getAllVariables()});
    entity->setCheckDelete(from.getCheckDelete());
    const QSet<QString> names(from.getVariables()->cbegin(), from.getVariables()->cend());
    for (TDcVariable *variable : std::as_const(*entity->getVariables()))
        variable->setChecked(from.getAllVariables() || names.contains(variable->getName()));
}

void RunDraft::describe(const QString &path)
{
    const QFileInfo info(path);
    ConfigDb &database = dataBase();
    database.setName(path.isEmpty() ? m_root->getName() : info.completeBaseName());
    database.setLabel(m_root->getLabel());
    if (!path.isEmpty()) {
        database.setFolder(info.absolutePath());
        database.setSourceFile(info.absoluteFilePath());
    }
}

void RunDraft::proposeAuthor(const QString &author)
{
    dataBase().setAuthor(author);
    m_saved = content();
}

bool RunDraft::save(const QString &path, DocumentFile::SaveOptions options)
{
    const QByteArray saved = content();
    if (!m_file->saveAs(path, options))
        return false;
    m_saved = saved;
    return true;
}

bool RunDraft::isModified()
{
    return content() != m_saved;
}

QByteArray RunDraft::content()
{
    writeChoices();
    return m_file->content();
}

const Config &RunDraft::config()
{
    writeChoices();
    return *m_file->config();
}

ConfigDb &RunDraft::dataBase() const
{
    return *m_file->config()->getDataBase();
}

ConfigOptions &RunDraft::options() const
{
    return *m_file->config()->getOptions();
}

ConfigEntities &RunDraft::settings(const TDcEntity *entity) const
{
    return *m_settings.value(entity);
}

QList<TDcEntity *> RunDraft::entities() const
{
    QList<TDcEntity *> all;
    preOrder(m_root.get(), [&all](TDcEntity *entity) { all.append(entity); });
    return all;
}

QList<TDcEntity *> RunDraft::chosen() const
{
    QList<TDcEntity *> taken;
    preOrder(m_root.get(), [&taken](TDcEntity *entity) {
        if (entity->getSelectable())
            taken.append(entity);
    });
    return taken;
}

void RunDraft::chooseEntities(bool takePart)
{
    preOrder(m_root.get(), [takePart](TDcEntity *entity) { entity->setSelectable(takePart); });
}

void RunDraft::takeAllVariables(TDcEntity *entity, bool all)
{
    settings(entity).setAllVariables(all);
    if (all)
        checkVariables(entity, *entity->getVariables(), true);
}

void RunDraft::checkVariables(TDcEntity *entity, const QList<TDcVariable *> &variables, bool checked)
{
    for (TDcVariable *variable : variables)
        variable->setChecked(checked);
    followChecks(entity);
}

void RunDraft::followChecks(TDcEntity *entity)
{
    if (checkedVariables(entity).size() < entity->getVariables()->size())
        settings(entity).setAllVariables(false);
}

void RunDraft::setCheckDelete(TDcEntity *entity, bool checkDelete)
{
    settings(entity).setCheckDelete(checkDelete);
    entity->setCheckDelete(checkDelete); // What the tree shows.
}

QList<TDcVariable *> RunDraft::checkedVariables(const TDcEntity *entity)
{
    QList<TDcVariable *> taken;
    std::copy_if(entity->getVariables()->cbegin(), entity->getVariables()->cend(), std::back_inserter(taken),
                 [](const TDcVariable *variable) { return variable->getChecked(); });
    return taken;
}

QStringList RunDraft::unknownEntities() const
{
    const QList<ConfigEntities *> known = m_settings.values();
    const QSet<ConfigEntities *> shown(known.cbegin(), known.cend());
    QStringList names;
    for (ConfigEntities *entry : m_order) {
        if (!shown.contains(entry))
            names.append(entry->getName());
    }
    return names;
}

QStringList RunDraft::unknownVariables(const TDcEntity *entity) const
{
    const QSet<QString> known = namesOf(*entity->getVariables());
    QStringList names = m_named.value(entity).names;
    names.removeIf([&known](const QString &name) { return known.contains(name); });
    names.removeDuplicates();
    return names;
}

void RunDraft::writeChoices()
{
    QList<ConfigEntities *> &used = *m_file->config()->getEntities();
    QList<ConfigEntities *> &unused = *m_unused.get();
    QSet<ConfigEntities *> left;
    for (auto entry = m_settings.cbegin(); entry != m_settings.cend(); ++entry) {
        if (!entry.key()->getSelectable())
            left.insert(entry.value());
    }
    used.clear();
    unused.clear();
    std::partition_copy(m_order.cbegin(), m_order.cend(), std::back_inserter(unused),
                        std::back_inserter(used),
                        [&left](ConfigEntities *entry) { return left.contains(entry); });
    for (auto entry = m_settings.cbegin(); entry != m_settings.cend(); ++entry) {
        if (QStringList names = namesFor(entry.key()); names != *entry.value()->getVariables())
            entry.value()->setVariables(new QStringList(std::move(names)));
    }
}

QStringList RunDraft::namesFor(const TDcEntity *entity) const
{
    const Named before = m_named.value(entity);
    const bool all = settings(entity).getAllVariables();
    if (all && before.all)
        return before.names; // Whoever wrote them had a reason.
    const QList<TDcVariable *> taken = all ? QList<TDcVariable *>() : checkedVariables(entity);
    QSet<QString> open = namesOf(*entity->getVariables()) - namesOf(taken);
    QStringList names = before.names;
    names.removeIf([&open](const QString &name) { return open.contains(name); });
    QSet<QString> listed(names.cbegin(), names.cend());
    listed.insert(QString()); // A variable without a name cannot be told of.
    for (const TDcVariable *variable : taken) {
        if (!listed.contains(variable->getName()))
            names.append(variable->getName());
        listed.insert(variable->getName());
    }
    return names;
}
