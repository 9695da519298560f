#include "workbench/Document.h"

#include "model/TDcEntity.h"
#include "workbench/DictionaryStorage.h"

#include <QFileInfo>
#include <QScopedValueRollback>

Document::Document(QObject *parent)
    : QObject(parent), m_root(newRoot()),
      m_history(&m_undoStack, [this](std::unique_ptr<TDcEntity> root) { replaceRoot(std::move(root)); })
{
    m_history.start(*m_root);
    connect(&m_undoStack, &QUndoStack::cleanChanged, this,
            [this](bool clean) { Q_EMIT modifiedChanged(!clean); });
}

Document::~Document() = default;

std::unique_ptr<TDcEntity> Document::newRoot() const
{
    auto root = std::make_unique<TDcEntity>();
    root->setName(tr("DICTIONARY"));
    return root;
}

QString Document::title() const
{
    return m_path.isEmpty() ? tr("New dictionary") : QFileInfo(m_path).fileName();
}

void Document::clear()
{
    start(newRoot(), {});
}

bool Document::open(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    std::unique_ptr<TDcEntity> root = DictionaryStorage::read(absolute, &m_errorString);
    if (!root)
        return false;
    start(std::move(root), absolute);
    return true;
}

bool Document::save(const QString &path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    if (!DictionaryStorage::write(*m_root, absolute, &m_errorString))
        return false;
    m_undoStack.setClean();
    setPath(absolute);
    return true;
}

void Document::start(std::unique_ptr<TDcEntity> root, const QString &path)
{
    replaceRoot(std::move(root));
    m_history.start(*m_root);
    setPath(path);
}

void Document::replaceRoot(std::unique_ptr<TDcEntity> root)
{
    const QScopedValueRollback changing(m_changing, true);
    Q_EMIT structureAboutToChange();
    m_root = std::move(root);
    Q_EMIT structureChanged();
}

void Document::setPath(const QString &path)
{
    m_path = path;
    Q_EMIT pathChanged(path);
}

void Document::commit(const QString &text, TDcEntity *entity)
{
    if (m_changing)
        return;
    Q_UNUSED(entity)
    if (m_history.record(*m_root, text.isEmpty() ? tr("change") : text))
        Q_EMIT contentChanged();
}

void Document::edit(const QString &text, const std::function<void()> &change)
{
    {
        const QScopedValueRollback changing(m_changing, true);
        Q_EMIT structureAboutToChange();
        change();
        Q_EMIT structureChanged();
    }
    commit(text);
}
