// Makes the sound of the alarm: a small bell struck twice, 16-bit PCM.
//
// The sound is reckoned in whole numbers, so that every machine makes the same file to the last byte.

#include <QCoreApplication>
#include <QDataStream>
#include <QSaveFile>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr int cadence = 44100; // samples a second
constexpr int duree = cadence * 18 / 10;
constexpr int montee = cadence / 400; // from the stroke to the full strength
constexpr int fondu = cadence / 20;
constexpr int crete = 28000; // loudest sample, of 32767
constexpr double fondamentale = 1174.7; // Hz
constexpr int coups[] = {0, cadence * 18 / 100};

/// One voice of the bell: its pitch in fundamentals, its strength, and the time in which it fades by 60 dB. Voices of
/// changing sign don't all rise at once, which leaves more room for the ringing.
struct Partiel
{
    double rapport;
    double force;
    double secondes;
};

constexpr Partiel cloche[] = {
    {0.5, 0.25, 3.2},   {1.0, -0.60, 2.6}, {1.2, 0.40, 2.0},   {1.5, -0.20, 1.6}, {2.0, 0.70, 1.5},
    {2.67, -0.25, 0.8}, {3.0, 0.30, 0.7},  {4.07, -0.20, 0.4}, {5.3, 0.10, 0.25},
};

/// Adds a fading sine from sample \p debut on. Each sample follows from the two before it; coefficients and samples
/// are whole numbers, of 30 and of 12 bits behind the point.
void ajoute(std::vector<qint64> &son, int debut, const Partiel &partiel)
{
    constexpr int bits = 30;
    constexpr qint64 moitie = qint64(1) << (bits - 1);
    constexpr double unite = double(qint64(1) << bits);
    constexpr double amplitude = 4096.0 * 8192.0;
    const double pas = 2 * 3.14159265358979323846 * fondamentale * partiel.rapport / cadence;
    const double perte = std::exp(-6.907755278982137 / (partiel.secondes * cadence));
    const qint64 elan = std::llrint(2 * perte * std::cos(pas) * unite);
    const qint64 frein = std::llrint(perte * perte * unite);
    qint64 avant = 0;
    qint64 present = std::llrint(amplitude * partiel.force * perte * std::sin(pas));
    for (size_t i = size_t(debut) + 1; i < son.size(); ++i) {
        son[i] += present * std::min(int(i) - debut, montee) / montee;
        const qint64 suivant = (elan * present - frein * avant + moitie) >> bits;
        avant = present;
        present = suivant;
    }
}

std::vector<qint16> sonne()
{
    std::vector<qint64> son(duree);
    for (const int coup : coups)
        for (const Partiel &partiel : cloche)
            ajoute(son, coup, partiel);
    qint64 plusFort = 1;
    for (const qint64 echantillon : son)
        plusFort = std::max(plusFort, std::abs(echantillon));
    std::vector<qint16> pcm;
    pcm.reserve(son.size());
    for (int i = 0; i < duree; ++i) {
        const int reste = std::min(duree - 1 - i, fondu);
        pcm.push_back(qint16(son[size_t(i)] * crete / plusFort * reste / fondu));
    }
    return pcm;
}

bool ecrit(const QString &nom, const std::vector<qint16> &pcm)
{
    constexpr quint32 tailleFormat = 16;
    constexpr quint32 octets = sizeof(qint16);
    const quint32 tailleSon = quint32(pcm.size()) * octets;
    QSaveFile fichier(nom);
    if (!fichier.open(QIODevice::WriteOnly))
        return false;
    QDataStream flux(&fichier);
    flux.setByteOrder(QDataStream::LittleEndian);
    flux.writeRawData("RIFF", 4);
    flux << quint32(4 + 8 + tailleFormat + 8 + tailleSon);
    flux.writeRawData("WAVEfmt ", 8);
    flux << tailleFormat << quint16(1) << quint16(1) << quint32(cadence) << quint32(cadence * octets) << quint16(octets)
         << quint16(8 * octets);
    flux.writeRawData("data", 4);
    flux << tailleSon;
    for (const qint16 echantillon : pcm)
        flux << echantillon;
    return flux.status() == QDataStream::Ok && fichier.commit();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fprintf(stderr, "creeson <son.WAV>\n");
        return EXIT_FAILURE;
    }
    if (!ecrit(arguments[1], sonne())) {
        std::fprintf(stderr, "creeson : %s ne peut pas être écrit\n", qUtf8Printable(arguments[1]));
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
