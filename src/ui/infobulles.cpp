#include "ui/infobulles.h"

#include "app/messages.h"
#include "store/valeur.h"

#include <QWidget>

#include <map>

namespace {

struct Infobulle
{
    QString controle;
    QString texte;
};

using Infobulles = std::vector<Infobulle>;

Infobulles duConcours(const TableMessages &mes)
{
    return {{u"référence"_qs, mes(135)}, {u"Text2"_qs, mes(139)},   {u"Check1"_qs, mes(166)},
            {u"Lrepech"_qs, mes(166)},   {u"Dupliquer"_qs, mes(134)}};
}

Infobulles desEquipes(const TableMessages &mes)
{
    return {{u"référence"_qs, mes(135)},  {u"Equipe"_qs, mes(136)},     {u"Label1"_qs, mes(138)},
            {u"LicenceJ_0"_qs, mes(137)}, {u"LicenceJ_1"_qs, mes(137)}, {u"LicenceJ_2"_qs, mes(137)},
            {u"SupprimerC"_qs, mes(131)}, {u"Command2"_qs, mes(132)}};
}

Infobulles desResultats(const TableMessages &mes)
{
    const QString score = mes(141) + mes(43) + u", "_qs + mes(44) + u", "_qs + mes(45);
    return {{u"listconcours"_qs, mes(135)}, {u"Equipe1"_qs, mes(140)}, {u"Equipe2"_qs, mes(140)},
            {u"Score1"_qs, score},          {u"Score2"_qs, score},     {u"imprimer"_qs, mes(142)}};
}

Infobulles deLaBoiteAOutils(const TableMessages &mes)
{
    return {{u"start"_qs, mes(158)},    {u"stop"_qs, mes(159)},      {u"effacer"_qs, mes(160)},
            {u"Command1"_qs, mes(161)}, {u"Maxvaleur"_qs, mes(162)}, {u"lancer"_qs, mes(163)},
            {u"RAZ"_qs, mes(164)}};
}

Infobulles infobullesDe(const QString &forme, const TableMessages &mes)
{
    const std::map<QString, Infobulles> toutes{
        {u"Econcours"_qs, duConcours(mes)},
        {u"Eequipes"_qs, desEquipes(mes)},
        {u"Ejoueurs"_qs, {{u"SupprimerC"_qs, mes(133)}, {u"Label1"_qs, mes(138)}, {u"ne"_qs, mes(139)}}},
        {u"Listesoc"_qs,
         {{u"Recherche"_qs, mes(152)},
          {u"Liste_soc"_qs, mes(149)},
          {u"Command1"_qs, mes(150)},
          {u"Command2"_qs, mes(151)}}},
        {u"listeq"_qs,
         {{u"Les_équipes"_qs, mes(148)}, {u"imprimer"_qs, mes(153)}, {u"imprimer_selection"_qs, mes(154)}}},
        {u"listjo"_qs, {{u"Les_équipes"_qs, mes(148)}, {u"Rafraichir"_qs, mes(151)}, {u"imprimer"_qs, mes(154)}}},
        {u"EResultats"_qs, desResultats(mes)},
        {u"manqres"_qs, {{u"les_resultats_0"_qs, mes(143)}, {u"les_resultats_1"_qs, mes(144)}}},
        {u"valresu"_qs, {{u"les_resultats"_qs, mes(145)}}},
        {u"Groupes"_qs, {{u"les_resultats_0"_qs, mes(146)}}},
        {u"palmares"_qs, {{u"Thonneur_1"_qs, mes(147)}}},
        {u"I_tirage"_qs, {{u"Tour"_qs, mes(155)}, {u"D_tail"_qs, mes(156)}, {u"Label2"_qs, mes(156)},
                          {u"Imprime"_qs, mes(157)}}},
        {u"FrmHorloge"_qs, deLaBoiteAOutils(mes)},
    };
    const auto trouvees = toutes.find(forme);
    return trouvees == toutes.end() ? Infobulles() : trouvees->second;
}

} // namespace

void PoseInfobulles(const QWidget &forme, const TableMessages &mes)
{
    for (const auto &[nom, texte] : infobullesDe(forme.objectName(), mes)) {
        auto *controle = forme.findChild<QWidget *>(nom);
        Q_ASSERT_X(controle != nullptr, "PoseInfobulles", qUtf8Printable(nom));
        // A sentence a line.
        controle->setToolTip(QString(texte).replace(u". "_qs, u".\n"_qs));
    }
}
