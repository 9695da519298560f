// Uses the library of files, checks and reports as a consumer would: documents FILE COPY.
#include "documents/checks/DictionaryCheck.h"
#include "documents/codebook/Codebook.h"
#include "documents/DictionaryCopy.h"
#include "documents/DictionaryDifference.h"
#include "documents/DictionaryFile.h"
#include "documents/sources/SourceReader.h"
#include "model/TDcEntity.h"

#include <QTextStream>

/// Saves a copy of a dictionary under another label and tells what differs; the exit status says whether all
/// of it worked.
int main(int argc, char **argv)
{
    DictionaryFile file;
    if (argc != 3 || !file.open(QString::fromLocal8Bit(argv[1])))
        return 1;
    const auto before = DictionaryCopy::copy(*file.root());
    file.root()->setLabel(QStringLiteral("Changed"));
    if (!file.saveAs(QString::fromLocal8Bit(argv[2])))
        return 2;
    const auto difference = DictionaryDifference::between(*before, *file.root());
    QTextStream(stdout) << difference.text().join(u'\n') << u'\n'
                        << DictionaryCheck::summary(DictionaryCheck::check(file.root())) << u'\n';
    const bool works = difference.changes().size() == 1 && Codebook::html(file.root()).contains("Changed")
        && SourceReader::suffixes().contains(QStringLiteral("sav"));
    return works ? 0 : 3;
}
