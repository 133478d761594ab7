// libFuzzer entry for the scene reader: documents into the world, a few steps, and back.
#include "Files/fuzz/SceneInputCheck.h"

#include <QApplication>
#include <QByteArray>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
void keepQuiet(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(keepQuiet);
    static QApplication application(*argc, *argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString fault
        = checkSceneInput(QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size)));
    if (!fault.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(fault));
        std::abort();
    }
    return 0;
}
