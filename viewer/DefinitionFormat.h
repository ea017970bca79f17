#ifndef DATALOG_VIEWER_DEFINITIONFORMAT_H
#define DATALOG_VIEWER_DEFINITIONFORMAT_H

#include <QString>

/** The kinds of files that definitions are kept in, told by the end of the file's name. */
namespace DefinitionFormat
{

enum Kind {
    Unknown,
    Session, ///< everything, as JSON
    Xml ///< variables and criteria, as other programs for the instrument read them
};

/** Upper and lower case are the same. */
Kind ofFile(const QString &path);
/** All there are, such as ".json or .xml". */
QString suffixes();

} // namespace DefinitionFormat

#endif
