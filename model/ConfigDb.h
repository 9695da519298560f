#pragma once

#include "model/DocumentOrigin.h"
#include "model/model_quillon_export.h"

#include <QString>

/// The database that a run is created from.
class MODEL_QUILLON_EXPORT ConfigDb : public FromDocument
{
public:
    ConfigDb() = default;
    ~ConfigDb() = default;
    Q_DISABLE_COPY_MOVE(ConfigDb)

    [[nodiscard]] QString getName() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    [[nodiscard]] QString getLabel() const { return m_label; }
    void setLabel(const QString &label) { m_label = label; }

    [[nodiscard]] QString getAuthor() const { return m_author; }
    void setAuthor(const QString &author) { m_author = author; }

    [[nodiscard]] QString getFilter() const { return m_filter; }
    void setFilter(const QString &filter) { m_filter = filter; }

    [[nodiscard]] QString getSelectFilter() const { return m_selectFilter; }
    void setSelectFilter(const QString &selectFilter) { m_selectFilter = selectFilter; }

    [[nodiscard]] QString getFileFilter() const { return m_fileFilter; }
    void setFileFilter(const QString &fileFilter) { m_fileFilter = fileFilter; }

    [[nodiscard]] QString getFolder() const { return m_folder; }
    void setFolder(const QString &folder) { m_folder = folder; }

    [[nodiscard]] QString getProject() const { return m_project; }
    void setProject(const QString &project) { m_project = project; }

    [[nodiscard]] QString getSourceFile() const { return m_sourceFile; }
    void setSourceFile(const QString &sourceFile) { m_sourceFile = sourceFile; }

    /// Kept, and written to documents, in clear text.
    [[nodiscard]] QString getPassword() const { return m_password; }
    void setPassword(const QString &password) { m_password = password; }

private:
    QString m_name;
    QString m_label;
    QString m_author;
    QString m_filter;
    QString m_selectFilter;
    QString m_fileFilter;
    QString m_folder;
    QString m_project;
    QString m_sourceFile;
    QString m_password;
};
