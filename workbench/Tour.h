#pragma once

#include "workbench/Actions.h"
#include "workbench/MainWindow.h"

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <functional>

class QDialog;
class QWidget;

/// Goes through what the workbench can do, as a person would, and leaves a picture of each stop.
///
/// It is how the software is seen where there is no display, and how its pictures are made.
class Tour
{
    Q_DECLARE_TR_FUNCTIONS(Tour)

public:
    /// The pictures go to \a folder, which is made when it is not there. \a window must be shown.
    Tour(MainWindow *window, QString folder);

    /// Goes round with a copy of the dictionary at \a path, which stays as it is; the copy is in the folder
    /// afterwards, changed and saved. A data file (.sav) beside it serves as source, and areas.csv as area
    /// units. False when something was not as it should be, for instance a file of that name is in the folder
    /// already, and errorText() says what.
    [[nodiscard]] bool go(const QString &path);
    [[nodiscard]] QString errorText() const { return m_error; }

private:
    struct Stop {
        const char *name; ///< Of the picture.
        const char *caption; ///< What it shows.
        std::function<bool()> visit; ///< Does it, and takes the picture. False when it cannot be done.
    };
    [[nodiscard]] QList<Stop> stops();

    bool open();
    bool renameEntity();
    bool find();
    bool edit();
    bool giveValues();
    bool openDataFile();
    bool importFields();
    bool openTextFile();
    bool showLookups();
    bool showUndo();
    bool keepWork();
    bool save();
    bool check();
    bool search();
    bool editTogether();
    bool buildExpression();
    bool selectAreas();
    bool makeRun();
    bool showProgress();
    bool offerRecovery();
    bool showAbout();

    /// The dialog that \a id opens.
    template <typename Dialog>
    Dialog *show(ActionId id)
    {
        trigger(id);
        return m_window->findChild<Dialog *>();
    }
    /// Takes the picture of \a dialog and closes it.
    bool dismiss(QDialog *dialog);
    void trigger(ActionId id);
    /// Lets the windows show what was done.
    static void settle();
    /// Does \a change, during which the program asks something; \a button is the answer.
    bool answer(const QString &button, const std::function<void()> &change);
    /// Takes the picture of \a widget.
    bool picture(QWidget *widget);

    MainWindow *m_window; // Not owned.
    QString m_folder;
    QString m_copy; // Of the dictionary.
    QString m_dataFile; // Empty for none.
    QString m_areas; // File of area units; empty for none.
    QString m_error;
    QString m_name; // Of the stop.
    int m_pictures = 0;
};
