// libFuzzer entry for the geometry: reading polygons, triangulation and clipping.
#include "General/fuzz/GeometryInputCheck.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <cstdio>

namespace {

// The debug log of degenerate outlines would drown the fuzzer's own output.
void keepQuiet(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    qInstallMessageHandler(keepQuiet);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString fault = checkGeometryInput(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size)));
    if (!fault.isEmpty())
        qFatal("%s", qPrintable(fault));
    return 0;
}
