#ifndef DATALOG_FUZZ_FUZZTARGET_H
#define DATALOG_FUZZ_FUZZTARGET_H

#include <QByteArray>

#include <cstddef>
#include <cstdint>

/** Each target gives this one function; the fuzzer, or the replay of its corpus, calls it. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

/** Ends the program with a note of what should have held, in a way that every fuzzer sees. */
void fuzzRequire(bool holds, const char *what);

inline QByteArray fuzzBytes(const std::uint8_t *data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char *>(data), int(size));
}

#endif
