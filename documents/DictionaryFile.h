#pragma once

#include "documents/DocumentFile.h"

#include <memory>

class TDcEntity;

/// A dictionary document (.mvdb) in a file.
///
/// Opening puts into the objects what the layer's reader drops on purpose: a variable's documentation, the
/// position from "start", the weight variable of a single object under its usual key, the fractions of a
/// single range. What objects cannot hold (unknown keys, values of an unexpected type, missing keys that the
/// layer would write, lists written as one object) goes along with the object that it belongs to, also into
/// copies of it, and is written again unless that very property has been edited.
///
/// New objects are written as the layer writes them, and in addition whatever of their properties it would
/// leave out but could read: a file name, "local", a record, size and decimals for every type, codes that are
/// no numbers. Not in a document are marks of a session: "checked", the mark for deletion, levels.
class DOCUMENTS_EXPORT DictionaryFile : public DocumentFile
{
    Q_DECLARE_TR_FUNCTIONS(DictionaryFile)

public:
    /// An empty root entity and no file yet.
    DictionaryFile();
    ~DictionaryFile() override;

    /// The root entity, which belongs to the file until another file is opened with it or another root set.
    /// Never null.
    [[nodiscard]] TDcEntity *root() const { return m_root.get(); }
    /// Takes \a root over, which must not be null, and deletes the one before.
    void setRoot(std::unique_ptr<TDcEntity> root);
    /// Gives the root away and leaves an empty one behind.
    [[nodiscard]] std::unique_ptr<TDcEntity> takeRoot();

    /// A file that differs from this one in its \a root alone: it belongs to the same file in the same state,
    /// and would be saved in the same form. For work on a copy, for instance in another thread.
    [[nodiscard]] std::unique_ptr<DictionaryFile> withRoot(std::unique_ptr<TDcEntity> root) const;

    /// What save() would write.
    [[nodiscard]] QByteArray content() const override;

protected:
    bool load(const QByteArray &bytes, const std::stop_token &stop) override;

private:
    struct Frame;
    std::unique_ptr<TDcEntity> m_root;
    std::unique_ptr<Frame> m_frame;
};
