#include "aspect/echelle.h"

#include <QApplication>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace {

constexpr char variableEchelle[] = "QT_SCALE_FACTOR";
constexpr double finesse = 1000; // steps of the factor; rounded down, so that nothing sticks out by a pixel

} // namespace

double facteurQuiTient(const QSize &place, double echelle)
{
    const double facteur =
        std::min({1.0, double(place.width()) / ecranDeClub.width(), double(place.height()) / ecranDeClub.height()});
    return std::min(std::max(facteur, 1 / echelle), 1.0);
}

std::unique_ptr<QApplication> ouvreApplication(int &argc, char **argv)
{
    auto application = std::make_unique<QApplication>(argc, argv);
    const QScreen *ecran = QGuiApplication::primaryScreen();
    if (ecran == nullptr)
        return application;
    const double facteur = facteurQuiTient(ecran->size(), ecran->devicePixelRatio());
    if (facteur >= 1)
        return application;
    // Only a new application sees another scale.
    bool voulue = false;
    const double dejaVoulue = qEnvironmentVariable(variableEchelle).toDouble(&voulue);
    const double nouvelle = std::floor(facteur * (voulue ? dejaVoulue : 1) * finesse) / finesse;
    application.reset();
    qputenv(variableEchelle, QByteArray::number(nouvelle));
    return std::make_unique<QApplication>(argc, argv);
}
