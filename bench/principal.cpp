#include "aspect/apparence.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

/// One line a measure: the median of its repetitions, its limit where it has one, and how it has grown since the
/// measure of the same name at another size: 1 is in step with the size, 2 with its square.
class TableDesMedianes : public benchmark::BenchmarkReporter
{
public:
    /// How many times its limit the worst measure took; 0 when none has a limit. A measure that failed counts as
    /// infinite.
    double pireDepassement() const { return m_pire; }

    bool ReportContext(const Context &) override
    {
        std::printf("%-52s %12s %8s %10s\n", "median of the repetitions", "ms", "growth", "limit");
        return true;
    }

    void ReportRuns(const std::vector<Run> &mesures) override
    {
        for (const Run &mesure : mesures) {
            if (mesure.error_occurred) {
                std::printf("%-52s %s\n", mesure.benchmark_name().c_str(), mesure.error_message.c_str());
                m_pire = HUGE_VAL;
            } else if (mesure.aggregate_name == "median") {
                montre(mesure);
            }
        }
        std::fflush(stdout);
    }

private:
    struct Point
    {
        double taille = 0;
        double ms = 0;
    };

    /// Exponent of the growth since the last measure whose name differs by its first number alone; empty without one.
    std::string croissance(const std::string &nom, double ms)
    {
        const auto chiffres = nom.find_first_of("0123456789");
        if (chiffres == std::string::npos)
            return {};
        std::size_t longueur = 0;
        const double taille = std::stod(nom.substr(chiffres), &longueur);
        const Point avant =
            std::exchange(m_derniers[nom.substr(0, chiffres) + nom.substr(chiffres + longueur)], Point{taille, ms});
        if (avant.ms <= 0 || avant.taille <= 1 || taille <= avant.taille)
            return {};
        char texte[16];
        std::snprintf(texte, sizeof texte, "%.1f", std::log(ms / avant.ms) / std::log(taille / avant.taille));
        return texte;
    }

    void montre(const Run &mesure)
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
        std::printf("%-52s %12.3f %8s", nom.c_str(), ms, croissance(nom, ms).c_str());
        if (limite != mesure.counters.end()) {
            std::printf(" %10.0f%s", limite->second.value, ms < limite->second.value ? "" : "  OVER");
            m_pire = std::max(m_pire, ms / limite->second.value);
        }
        std::printf("\n");
    }

    std::map<std::string, Point> m_derniers;
    double m_pire = 0;
};

/// The plugin without a screen says at each window what it cannot do; the table would drown in it.
void taitLePlugin(QtMsgType type, const QMessageLogContext &contexte, const QString &texte)
{
    if (!texte.startsWith(u"This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, contexte, texte)));
}

/// The value of `--tolerance=N` among \p arguments, which is taken out of them: by how many times a measure may pass
/// its limit before the program fails. 0, as without it, is for ever.
double tolerance(std::vector<char *> &arguments)
{
    const std::string option = "--tolerance=";
    const auto donnee =
        std::ranges::find_if(arguments, [&](const char *a) { return std::string(a).starts_with(option); });
    if (donnee == arguments.end())
        return 0;
    const double fois = std::stod(std::string(*donnee).substr(option.size()));
    arguments.erase(donnee);
    return fois;
}

} // namespace

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    std::vector<char *> arguments(argv, argv + argc);
    const double admis = tolerance(arguments);
    std::string repetitions = "--benchmark_repetitions=5";
    arguments.insert(arguments.begin() + 1, repetitions.data()); // an argument of the caller's comes later and wins
    int nombre = int(arguments.size());
    benchmark::Initialize(&nombre, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(nombre, arguments.data()))
        return 1;
    qInstallMessageHandler(taitLePlugin);
    QApplication application(argc, argv);
    appliqueApparence(application);
    TableDesMedianes table;
    benchmark::RunSpecifiedBenchmarks(&table);
    if (admis > 0 && table.pireDepassement() > admis) {
        std::fprintf(stderr, "A measure took more than %g times its limit.\n", admis);
        return 1;
    }
    return 0;
}
