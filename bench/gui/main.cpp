// Benchmarks that draw with Qt need an application for fonts; the offscreen platform serves.
#include <QGuiApplication>
#include <benchmark/benchmark.h>
#include <cstdlib>

int main(int argc, char* argv[])
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
