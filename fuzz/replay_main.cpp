// Runs a fuzz target over files without libFuzzer: every build can replay the seed corpora (the
// test run does) and a plain build can be profiled. Usage: TARGET [-runs=N] FILE_OR_DIR...
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdint>
#include <cstdio>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

int main(int argc, char* argv[])
{
    long runs = 1;
    QList<QByteArray> inputs;
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], "-runs=", 6) == 0) {
            runs = std::atol(argv[i] + 6);
            continue;
        }
        const QString path = QString::fromLocal8Bit(argv[i]);
        QStringList files;
        if (QFileInfo(path).isDir()) {
            QDirIterator it(path, QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext())
                files << it.next();
            files.sort();
        } else {
            files << path;
        }
        for (const QString& file : files) {
            QFile input(file);
            if (!input.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cannot read %s\n", qPrintable(file));
                return 2;
            }
            inputs << input.readAll();
        }
    }
    long executed = 0;
    for (long run = 0; run < runs; ++run)
        for (const QByteArray& input : inputs) {
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(input.constData()), size_t(input.size()));
            ++executed;
        }
    std::printf("replayed %ld inputs (%d files, %ld runs)\n", executed, int(inputs.size()), runs);
    return 0;
}
