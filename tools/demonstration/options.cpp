#include "options.h"

#include "incident.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

namespace demonstration {

namespace {

constexpr int equipesMax = 9999;
constexpr int clubsMax = 900;
constexpr int equipesParClub = 3;

int entier(const QCommandLineParser &lecteur, const QString &option, int bas, int haut)
{
    bool valide = false;
    const int valeur = lecteur.value(option).toInt(&valide);
    exige(valide && valeur >= bas && valeur <= haut,
          u"L'option --%1 attend un nombre de %2 à %3."_qs.arg(option).arg(bas).arg(haut));
    return valeur;
}

} // namespace

Options litOptions(const QCoreApplication &application)
{
    QCommandLineParser lecteur;
    lecteur.setApplicationDescription(
        u"Joue toute une journée de concours dans les vraies fenêtres, au clavier et à la souris."_qs);
    lecteur.addHelpOption();
    lecteur.addOptions({
        {u"equipes"_qs, u"Nombre d'équipes, au moins 2."_qs, u"N"_qs, u"16"_qs},
        {u"type"_qs, u"1 doublettes, 2 triplettes, 3 tête-à-tête."_qs, u"T"_qs, u"1"_qs},
        {u"repeche"_qs, u"Concours avec repêchage : un tour de plus."_qs},
        {u"clubs"_qs, u"Nombre de clubs ; un pour trois équipes sans cette option."_qs, u"K"_qs},
        {u"hote"_qs, u"Part des équipes qui viennent du club hôte, en pourcentage."_qs, u"P"_qs, u"0"_qs},
        {u"graine"_qs, u"Graine du hasard : la même graine donne la même journée."_qs, u"S"_qs, u"1"_qs},
        {u"dossier"_qs, u"Dossier qui reçoit la base et les images."_qs, u"DIR"_qs, u"./demonstration"_qs},
    });
    lecteur.process(application);
    exige(lecteur.positionalArguments().isEmpty(), u"Ce programme n'attend que des options ; voir --help."_qs);

    Options options;
    options.equipes = entier(lecteur, u"equipes"_qs, 2, equipesMax);
    options.type = entier(lecteur, u"type"_qs, 1, 3);
    options.repeche = lecteur.isSet(u"repeche"_qs);
    options.clubs = lecteur.isSet(u"clubs"_qs) ? entier(lecteur, u"clubs"_qs, 1, clubsMax)
                                               : std::max(2, options.equipes / equipesParClub);
    options.clubs = std::min(options.clubs, clubsMax);
    options.hote = entier(lecteur, u"hote"_qs, 0, 100);
    options.graine = quint32(entier(lecteur, u"graine"_qs, 0, std::numeric_limits<int>::max()));
    options.dossier = lecteur.value(u"dossier"_qs);
    return options;
}

} // namespace demonstration
