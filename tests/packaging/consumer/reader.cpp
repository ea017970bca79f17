#include "parsing/LogParser.h"

/** Whether the log that is named can be read. */
int main(int argc, char *argv[])
{
    LogParser parser;
    QString error;
    parser.parseFileAtPath(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""), error);
    return error.isEmpty() ? 0 : 1;
}
