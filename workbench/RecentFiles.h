#pragma once

#include <QObject>
#include <QStringList>

class QMenu;

/// The dictionaries opened last, kept in the settings; newest first.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int most = 10;

    using QObject::QObject;

    [[nodiscard]] static QStringList paths();
    static void add(const QString &path);
    static void remove(const QString &path);
    static void clear();

    /// A menu that lists them whenever it opens.
    [[nodiscard]] QMenu *createMenu(QWidget *parent);

Q_SIGNALS:
    void chosen(const QString &path);
};
