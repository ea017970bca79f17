// Changes logs as logs: lines and cells move, double, go and come, marks among them. Plain bytes
// alone would seldom get past the three header rows.

#include "LogLines.h"

#include <cstring>
#include <random>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

namespace
{

const int kSpreadsheetsOneIn = 4000; // each starts a program

std::size_t put(const QByteArray &bytes, std::uint8_t *data, std::size_t maxSize)
{
    const std::size_t size = qMin(std::size_t(bytes.size()), maxSize);
    std::memcpy(data, bytes.constData(), size);
    return size;
}

void chooseKind(std::uint8_t *data, std::size_t size, std::mt19937 &random)
{
    if (size == 0)
        return;
    if (random() % kSpreadsheetsOneIn == 0)
        data[0] = 'x';
    else if (data[0] != 't' && data[0] != 'c')
        data[0] = random() % 2 ? 't' : 'c';
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maxSize, unsigned int seed)
{
    std::mt19937 random(seed);
    if (size < 2 || random() % 4 == 0) {
        size = LLVMFuzzerMutate(data, size, maxSize);
    } else {
        LogLines log(QByteArray(reinterpret_cast<char *>(data), int(size)), &random);
        for (int changes = 1 + int(random() % 3); changes > 0; --changes)
            log.change();
        size = put(log.bytes(), data, maxSize);
    }
    chooseKind(data, size, random);
    return size;
}

extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t *first, std::size_t firstSize,
                                                 const std::uint8_t *second, std::size_t secondSize,
                                                 std::uint8_t *out, std::size_t maxSize,
                                                 unsigned int seed)
{
    std::mt19937 random(seed);
    LogLines log(QByteArray(reinterpret_cast<const char *>(first), int(firstSize)), &random);
    log.splice(QByteArray(reinterpret_cast<const char *>(second), int(secondSize)));
    return put(log.bytes(), out, maxSize);
}
