#include "workbench/Document.h"

#include "documents/DictionaryCopy.h"
#include "model/TDcEntity.h"

#include <QDir>
#include <QFileInfo>
#include <QScopedValueRollback>

Document::Document(QObject *parent)
    : QObject(parent), m_file(newFile()),
      m_history(&m_undoStack, [this](auto extent, const auto &change) { announce(extent, change); })
{
    m_history.start(*root());
    connect(&m_undoStack, &QUndoStack::cleanChanged, this,
            [this](bool clean) { Q_EMIT modifiedChanged(!clean); });
}

Document::~Document()
{
    // The stack empties itself when it goes, which is nobody's business any more.
    m_undoStack.disconnect();
}

std::unique_ptr<DictionaryFile> Document::newFile() const
{
    auto file = std::make_unique<DictionaryFile>();
    file->root()->setName(tr("DICTIONARY"));
    return file;
}

QString Document::title() const
{
    return titleOf(path());
}

QString Document::titleOf(const QString &path)
{
    return path.isEmpty() ? tr("New dictionary") : QFileInfo(path).fileName();
}

void Document::clear()
{
    start(newFile(), Access::ReadWrite);
}

bool Document::open(const QString &path, Access access)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    return read(tr("Opening “%1”…").arg(titleOf(path)), access,
                [absolute](DictionaryFile &file, const auto &stop) { return file.open(absolute, stop); });
}

bool Document::restore(const DocumentFile::Unsaved &unsaved, Access access)
{
    const bool done =
        read(tr("Recovering “%1”…").arg(titleOf(unsaved.path)), access,
             [unsaved](DictionaryFile &file, const auto &stop) { return file.restore(unsaved, stop); });
    if (done)
        m_undoStack.resetClean();
    return done;
}

bool Document::read(const QString &text, Access access, const Read &read)
{
    // Whoever cancels leaves it to be read in vain for a while; so nothing else knows of it.
    struct Reading {
        std::unique_ptr<DictionaryFile> file = std::make_unique<DictionaryFile>();
        bool done = false;
    };
    const auto reading = std::make_shared<Reading>();
    std::stop_source stop;
    const bool waited = m_wait(text, true, [reading, read, token = stop.get_token()] {
        reading->done = read(*reading->file, token);
    });
    if (!waited) {
        stop.request_stop();
        m_error = DocumentFile::Error::None;
        m_errorText.clear();
        return false;
    }
    if (!succeed(reading->done, *reading->file))
        return false;
    start(std::move(reading->file), access);
    return true;
}

bool Document::isAt(const QString &path) const
{
    const auto place = [](const QFileInfo &file) {
        const QString canonical = file.canonicalFilePath(); // Empty when there is none.
        return canonical.isEmpty() ? QDir::cleanPath(file.absoluteFilePath()) : canonical;
    };
    return !this->path().isEmpty() && place(QFileInfo(path)) == place(QFileInfo(this->path()));
}

std::unique_ptr<DictionaryFile> Document::snapshot() const
{
    return m_file->withRoot(DictionaryCopy::copy(m_history.committed()));
}

bool Document::save(const QString &path, DocumentFile::SaveOptions options)
{
    if (m_access == Access::ReadOnly && isAt(path)) {
        m_error = DocumentFile::Error::ReadOnly;
        m_errorText = tr("It was opened for reading only. Save it under another name.");
        return false;
    }
    // A copy is written, since the views go on looking at the objects themselves.
    auto file = m_file->withRoot(DictionaryCopy::copy(*root()));
    bool done = false;
    const QFileInfo info(path);
    m_wait(tr("Saving “%1”…").arg(info.fileName()), false,
           [&] { done = file->saveAs(info.absoluteFilePath(), options); });
    if (!succeed(done, *file))
        return false;
    file->setRoot(m_file->takeRoot());
    m_file = std::move(file);
    m_access = Access::ReadWrite;
    m_undoStack.setClean();
    Q_EMIT pathChanged(this->path());
    return true;
}

bool Document::succeed(bool done, const DictionaryFile &file)
{
    m_error = file.error();
    m_errorText = file.errorText();
    return done;
}

void Document::start(std::unique_ptr<DictionaryFile> file, Access access)
{
    {
        const QScopedValueRollback changing(m_changing, true);
        Q_EMIT structureAboutToChange();
        m_file = std::move(file);
        m_access = access;
        m_history.start(*root());
        Q_EMIT structureChanged();
    }
    Q_EMIT pathChanged(path());
}

void Document::announce(History::Extent extent, const std::function<void(TDcEntity &root)> &change)
{
    const QScopedValueRollback changing(m_changing, true);
    if (extent == History::Extent::Structure)
        Q_EMIT structureAboutToChange();
    change(*root());
    if (extent == History::Extent::Structure)
        Q_EMIT structureChanged();
    else
        Q_EMIT contentChanged();
}

bool Document::commit(const QString &text, TDcEntity *entity)
{
    if (m_changing || !m_history.record(*root(), text, entity))
        return false;
    Q_EMIT contentChanged();
    return true;
}

void Document::edit(const QString &text, const std::function<void()> &change)
{
    announce(History::Extent::Structure, [&change](TDcEntity &) { change(); });
    commit(text);
}
