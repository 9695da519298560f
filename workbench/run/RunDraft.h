#pragma once

#include "documents/RunConfigurationFile.h"
#include "model/OwnedList.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class ConfigDb;
class ConfigEntities;
class ConfigOptions;
class TDcEntity;
class TDcVariable;

/// A run configuration in the making: what a person chooses among the entities and variables of a dictionary.
///
/// It works on a copy of the dictionary, where the selectable mark of an entity says that it takes part in
/// the run, and the check of a variable that it does. The open dictionary is not touched.
///
/// Entities and variables are told by their names; where several entities share one, by their order too. What
/// a file says of others than the dictionary has stays in it.
class RunDraft
{
public:
    /// A new run: the entities that are selectable in the dictionary under \a root take part with all their
    /// variables. \a path is where the dictionary is kept, empty for nowhere yet.
    explicit RunDraft(const TDcEntity &root, const QString &path = {});
    /// The run that \a file, which was opened, says of the dictionary under \a root.
    RunDraft(const TDcEntity &root, std::unique_ptr<RunConfigurationFile> file);
    ~RunDraft();
    Q_DISABLE_COPY_MOVE(RunDraft)

    /// Sets the author of a new run, which does not count as a change.
    void proposeAuthor(const QString &author);
    /// Puts the choices into the configuration and saves it at \a path. If that fails, file() says why.
    [[nodiscard]] bool save(const QString &path, DocumentFile::SaveOptions options = {});
    /// Whether saving would write something else than what was opened or saved last. A new run has not
    /// changed as long as nothing was chosen.
    [[nodiscard]] bool isModified();

    [[nodiscard]] const RunConfigurationFile &file() const { return *m_file; }
    /// Puts the choices into the configuration and gives it, which stays the draft's.
    [[nodiscard]] const Config &config();

    // What is changed in place.
    [[nodiscard]] ConfigDb &dataBase() const;
    [[nodiscard]] ConfigOptions &options() const;
    /// How \a entity takes part. There for entities that do not take part too, should they do so later.
    [[nodiscard]] ConfigEntities &settings(const TDcEntity *entity) const;

    /// The root of the copy.
    [[nodiscard]] TDcEntity *root() const { return m_root.get(); }
    /// The entities that take part, in the order of the dictionary.
    [[nodiscard]] QList<TDcEntity *> chosen() const;
    /// Lets all entities take part, or none.
    void chooseEntities(bool takePart);
    /// Whether \a entity takes part with all variables, those that it will have one day included. If so, all
    /// are checked.
    void takeAllVariables(TDcEntity *entity, bool all);
    /// Checks \a variables of \a entity, or does not any longer.
    void checkVariables(TDcEntity *entity, const QList<TDcVariable *> &variables, bool checked);
    /// To be called when checks were changed in place: with one of them missing, not all take part.
    void followChecks(TDcEntity *entity);
    /// Marks \a entity for deletion, or not.
    void setCheckDelete(TDcEntity *entity, bool checkDelete);
    /// The variables of \a entity that take part.
    [[nodiscard]] static QList<TDcVariable *> checkedVariables(const TDcEntity *entity);

    /// The names of the entities in the file that the dictionary does not have.
    [[nodiscard]] QStringList unknownEntities() const;
    /// The names of variables that the file gives for \a entity and that it does not have; each once.
    [[nodiscard]] QStringList unknownVariables(const TDcEntity *entity) const;

private:
    /// What the file said of an entity's variables.
    struct Named {
        QStringList names;
        bool all = false;
    };

    void describe(const QString &path);
    void addSettings(const TDcEntity *entity);
    void readVariables(TDcEntity *entity);
    void writeChoices();
    [[nodiscard]] QStringList namesFor(const TDcEntity *entity) const;
    [[nodiscard]] QByteArray content();
    [[nodiscard]] QList<TDcEntity *> entities() const;

    std::unique_ptr<TDcEntity> m_root;
    std::unique_ptr<RunConfigurationFile> m_file; // Never null.
    QList<ConfigEntities *> m_order; // Those of the file, then the others in the order of the dictionary.
    OwnedList<ConfigEntities> m_unused; // Of m_order, what is not in the configuration.
    QHash<const TDcEntity *, ConfigEntities *> m_settings; // For each entity one of m_order.
    QHash<const TDcEntity *, Named> m_named;
    QByteArray m_saved; // What the file held, or would have held, when it was opened or saved.
};
