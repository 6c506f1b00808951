#include "salle.h"

#include "app/concours_courant.h"

#include <QCryptographicHash>

using store::Instruction;

namespace {

std::optional<int> optionnel(const Instruction &ligne, int colonne)
{
    return ligne.estNulle(colonne) ? std::nullopt : std::optional(int(ligne.nombre(colonne)));
}

LigneTbclass litTbclass(const Instruction &ligne)
{
    return {.gagnees = int(ligne.nombre(1)),
            .perdues = int(ligne.nombre(2)),
            .pp = optionnel(ligne, 3),
            .pc = optionnel(ligne, 4),
            .ga = optionnel(ligne, 5),
            .pt = int(ligne.nombre(6)),
            .repechage = optionnel(ligne, 7),
            .alea = int(ligne.nombre(8))};
}

} // namespace

bool OperateurEssai::demande(const QString &question)
{
    dits += u"demande : "_qs + question;
    return reponse;
}

void OperateurEssai::avertit(const QString &texte)
{
    dits += u"avertit : "_qs + texte;
}

void OperateurEssai::annonce(const QString &)
{
    ++annonces;
    if (aLAnnonce)
        aLAnnonce();
}

Salle::Salle(quint32 graine)
    : alea(graine)
    , partage(base.dossier(), alea, horloge)
{
    partage.BaseDonnees = base.ouvre();
    partage.mes.pose(114, u"Attention, le"_qs);
    partage.mes.pose(15, u"tirage"_qs);
    partage.mes.pose(115, u"du tour 1 a déjà été fait"_qs);
}

qint32 Salle::inscrit(const ConcoursInscrit &concours)
{
    const qint32 numero = poseConcours(partage.BaseDonnees, concours);
    choisit(numero);
    return numero;
}

void Salle::choisit(qint32 concours)
{
    partage.ConcoursCourant = concours;
    ChargeConcours(partage, partage.ConcoursCourant);
}

std::vector<LigneScores> Salle::scores(int tour)
{
    std::vector<LigneScores> lignes;
    Instruction lecture(native(), u"select tour, rencontre, equipe_1, equipe_2, score_1, score_2, repechage "
                                  u"from scores where concours = ?1 and tableau = 1 and (?2 = 0 or tour = ?2) order by rowid"_qs);
    lecture.lie(1, partage.ConcoursCourant);
    lecture.lie(2, tour);
    while (lecture.avance())
        lignes.push_back({.tour = int(lecture.nombre(0)),
                          .rencontre = int(lecture.nombre(1)),
                          .equipe1 = int(lecture.nombre(2)),
                          .equipe2 = int(lecture.nombre(3)),
                          .score1 = optionnel(lecture, 4),
                          .score2 = optionnel(lecture, 5),
                          .repechage = optionnel(lecture, 6)});
    return lignes;
}

std::map<int, LigneTbclass> Salle::tbclass()
{
    std::map<int, LigneTbclass> lignes;
    Instruction lecture(native(),
                        u"select equipe, gagnées, perdues, pp, pc, ga, pt, repechage, alea from tbclass"_qs);
    while (lecture.avance())
        lignes[int(lecture.nombre(0))] = litTbclass(lecture);
    return lignes;
}

std::map<int, LigneTbclass> Salle::classementRefait()
{
    std::map<int, LigneTbclass> lignes;
    Instruction lecture(native(),
                        u"with cotes(equipe, gagne, perd, marque, concede) as ("
                        u" select equipe_1, equipe_2 = 0 or ifnull(score_1, 0) = 13,"
                        u"  equipe_2 > 0 and ifnull(score_1, 0) <> 13 and ifnull(score_2, 0) = 13,"
                        u"  case equipe_2 when 0 then 13 else score_1 end, case equipe_2 when 0 then 7 else score_2 end"
                        u" from scores where concours = ?1"
                        u" union all"
                        u" select equipe_2, ifnull(score_1, 0) <> 13 and ifnull(score_2, 0) = 13,"
                        u"  ifnull(score_1, 0) = 13, score_2, score_1"
                        u" from scores where concours = ?1 and equipe_2 > 0)"
                        u"select equipe, sum(gagne), sum(perd), sum(marque), sum(concede),"
                        u" sum(marque) - sum(concede), sum(gagne), null, 0 from cotes group by equipe"_qs);
    lecture.lie(1, partage.ConcoursCourant);
    while (lecture.avance())
        lignes[int(lecture.nombre(0))] = litTbclass(lecture);
    return lignes;
}

std::map<int, QString> Salle::clubs()
{
    std::map<int, QString> noms;
    Instruction lecture(native(), u"select equipe, societe from equipes where concours = ? and doublon = 0"_qs);
    lecture.lie(1, partage.ConcoursCourant);
    while (lecture.avance())
        noms[int(lecture.nombre(0))] = lecture.valeur(1).texte();
    return noms;
}

int Salle::tourpri()
{
    return int(nombre(u"select tourpri from concours where concours = %1"_qs.arg(partage.ConcoursCourant)));
}

void Salle::saisit(int equipe1, int equipe2, const QString &score1, const QString &score2)
{
    store::Recordset scores = partage.BaseDonnees.OpenRecordset(u"scores", store::dbOpenTable);
    scores.Index(u"Equipes");
    scores.Seek(u"=", {QString::number(partage.ConcoursCourant), 1, partage.TourCourant, QString::number(equipe1),
                       QString::number(equipe2)});
    scores.Edit();
    scores[u"score_reel"] = true;
    scores[u"score_1"] = score1;
    scores[u"score_2"] = score2;
    scores.Update();
}

QByteArray Salle::empreinteSauf(qint32 concours)
{
    QStringList tables;
    Instruction noms(native(), u"select name from sqlite_master where type = 'table' order by name"_qs);
    while (noms.avance())
        tables += noms.valeur(0).texte();
    QCryptographicHash empreinte(QCryptographicHash::Sha1);
    for (const QString &table : std::as_const(tables)) {
        empreinte.addData(table.toUtf8());
        Instruction lignes(native(), u"select rowid, * from main.[%1] order by rowid"_qs.arg(table));
        while (lignes.avance()) {
            const bool enJeu = (table == u"scores" || table == u"concours") && lignes.nombre(1) == concours;
            if (enJeu && table == u"scores")
                continue;
            for (int colonne = 0; colonne < lignes.colonnes(); ++colonne) {
                if (!enJeu || lignes.nomColonne(colonne) != u"tourpri")
                    empreinte.addData((lignes.valeur(colonne).texte() + u'\x1f').toUtf8());
            }
        }
    }
    return empreinte.result();
}
