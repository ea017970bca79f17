#ifndef DATALOG_PARSING_LOGLIMITS_H
#define DATALOG_PARSING_LOGLIMITS_H

/**
 * How large a log may be. What goes beyond is refused with a message, instead of running into what
 * the engine's containers can hold, 2^31 bytes each, which ends a program.
 *
 * A file's size has no limit of its own: its lines are kept in pages.
 */
struct LogLimits {
    LogLimits()
        : lineBytes(64 * 1024 * 1024)
        , cellsInLine(1 << 20)
        , lines(1 << 27)
    {
    }

    int lineBytes; ///< a line in UTF-8; in other encodings, its characters
    int cellsInLine; ///< a million columns would take minutes to show already
    int lines; ///< of a file: that many numbers, one of each line, fit a list of them
};

#endif
