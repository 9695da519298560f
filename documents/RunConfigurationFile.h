#pragma once

#include "documents/DocumentFile.h"

#include <memory>

class Config;

/// A run configuration (.lsd.json) in a file.
///
/// Opening puts label and author of the database into the objects, which the layer's reader drops on purpose.
/// What objects cannot hold is kept as in a DictionaryFile. Filters, the project and the marks of entities,
/// which the layer reads and does not write, are written.
///
/// Nearly any object opens as a run configuration, since the layer reads leniently; a dictionary does not.
///
/// A file with a password, which stands there in clear text, is made readable by its owner alone.
class DOCUMENTS_EXPORT RunConfigurationFile : public DocumentFile
{
    Q_DECLARE_TR_FUNCTIONS(RunConfigurationFile)

public:
    /// A new configuration and no file yet.
    RunConfigurationFile();
    ~RunConfigurationFile() override;

    /// The configuration, which belongs to the file until another file is opened with it or another one set.
    /// Never null.
    [[nodiscard]] Config *config() const { return m_config.get(); }
    /// Takes \a config over, which must not be null, and deletes the one before.
    void setConfig(std::unique_ptr<Config> config);

    /// What save() would write.
    [[nodiscard]] QByteArray content() const override;

protected:
    bool load(const QByteArray &bytes, const std::stop_token &stop) override;
    [[nodiscard]] bool isSecret() const override;

private:
    std::unique_ptr<Config> m_config;
    bool m_byteOrderMark = false;
    bool m_indented = true;
};
