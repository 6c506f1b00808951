#include "ui/apparence.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdio>
#include <string>
#include <vector>

namespace {

/// One line a measure: the median of its repetitions, and its limit where it has one.
class TableDesMedianes : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override
    {
        std::printf("%-52s %12s %10s\n", "median of the repetitions", "ms", "limit");
        return true;
    }

    void ReportRuns(const std::vector<Run> &mesures) override
    {
        for (const Run &mesure : mesures) {
            if (mesure.error_occurred)
                std::printf("%-52s %s\n", mesure.benchmark_name().c_str(), mesure.error_message.c_str());
            else if (mesure.aggregate_name == "median")
                montre(mesure);
        }
        std::fflush(stdout);
    }

private:
    static void montre(const Run &mesure)
    {
        const double ms = mesure.GetAdjustedRealTime() * 1000 / benchmark::GetTimeUnitMultiplier(mesure.time_unit);
        std::string nom = mesure.benchmark_name();
        for (const std::string queue : {"_median", "/manual_time", "/real_time"}) {
            if (const auto place = nom.find(queue); place != std::string::npos)
                nom.erase(place, queue.size());
        }
        for (const std::string debut : {"/iterations:", "/repeats:"}) {
            if (const auto place = nom.find(debut); place != std::string::npos)
                nom.erase(place, nom.find('/', place + 1) - place);
        }
        // The limit itself is the one argument without a name.
        if (const auto place = nom.rfind('/'); place != std::string::npos && nom.find(':', place) == std::string::npos)
            nom.erase(place);
        const auto limite = mesure.counters.find("limite");
        std::printf("%-52s %12.3f", nom.c_str(), ms);
        if (limite != mesure.counters.end())
            std::printf(" %10.0f%s", limite->second.value, ms < limite->second.value ? "" : "  OVER");
        std::printf("\n");
    }
};

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::vector<char *> arguments(argv, argv + argc);
    std::string repetitions = "--benchmark_repetitions=5";
    arguments.insert(arguments.begin() + 1, repetitions.data()); // an argument of the caller's comes later and wins
    int nombre = int(arguments.size());
    benchmark::Initialize(&nombre, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(nombre, arguments.data()))
        return 1;
    QApplication application(argc, argv);
    appliqueApparence(application);
    TableDesMedianes table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return 0;
}
