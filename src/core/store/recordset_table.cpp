#include "store/recordset_base.h"

namespace store {

RecordsetTable::RecordsetTable(std::shared_ptr<BaseOuverte> ouverte, const Table *tableOuverte)
    : RecordsetBase(std::move(ouverte), tableOuverte)
    , m_selection(u"select rowid, * from [%1] "_qs.arg(tableOuverte->nom))
    , m_ordre(u" order by rowid"_qs)
{
    base().suitLecture(&m_flux);
}

RecordsetTable::~RecordsetTable()
{
    base().oublieLecture(&m_flux);
}

void RecordsetTable::Index(QStringView nom)
{
    m_index = table().indexNomme(nom);
    if (m_index == nullptr)
        throw Erreur(Erreur::ObjetInconnu, u"La table %1 n'a pas d'index %2."_qs.arg(table().nom, nom));
    QStringList cles;
    for (std::size_t i = 0; i < m_index->cles.size(); ++i)
        cles += nomCle(i) + (m_index->cles[i].descendant ? u" desc"_qs : QString());
    m_ordre = u" order by %1, rowid"_qs.arg(cles.join(u", "));
    m_flux.rend();
    m_place = Place::AvantLePremier;
}

QString RecordsetTable::nomCle(std::size_t cle) const
{
    return u'[' + table().champs[std::size_t(m_index->cles[cle].champ)].nom + u']';
}

int RecordsetTable::place(QStringView nom) const
{
    return table().champ(nom);
}

TypeChamp RecordsetTable::typeDuChamp(int place) const
{
    return table().champs[std::size_t(place)].type;
}

Valeur RecordsetTable::champ(int place)
{
    return m_ligne[std::size_t(place)];
}

/// Runs a search; its statement stays open behind the row that it found, so that a walk that writes nothing goes on
/// in it. A write into the file ends the statement; one into `tbclass` it meets as a new search would, since its rows
/// come straight from an index or the table.
bool RecordsetTable::cherche(const QString &condition, const std::vector<Valeur> &valeurs)
{
    m_flux.rend();
    m_flux = Instruction(base(), m_selection + condition + m_ordre);
    for (std::size_t i = 0; i < valeurs.size(); ++i)
        m_flux.lie(int(i) + 1, valeurs[i]);
    return recoit();
}

/// Takes over the next row of the open statement.
bool RecordsetTable::recoit()
{
    if (!m_flux.avance()) {
        m_flux.rend();
        return false;
    }
    m_rowid = m_flux.valeur(0).entier();
    m_ligne.clear();
    for (std::size_t i = 0; i < table().champs.size(); ++i)
        m_ligne.push_back(m_flux.valeur(int(i) + 1, table().champs[i].type));
    m_rowidCle = m_rowid;
    m_cles.clear();
    if (m_index != nullptr) {
        for (const CleIndex &cle : m_index->cles)
            m_cles.push_back(m_ligne[std::size_t(cle.champ)]);
    }
    m_place = Place::Ligne;
    return true;
}

/// Condition that the first \p nombre key fields equal \p cles.
QString RecordsetTable::egalites(const std::vector<Valeur> &cles, std::size_t nombre, std::vector<Valeur> &liees) const
{
    QStringList conditions;
    for (std::size_t i = 0; i < nombre; ++i) {
        if (cles[i].estNull()) {
            conditions += nomCle(i) + u" is null"_qs;
        } else {
            conditions += nomCle(i) + u" = ?"_qs;
            liees.push_back(cles[i]);
        }
    }
    return conditions.join(u" and ");
}

/// First row behind every row whose leading \p longueur key fields are \p cles. The longest common beginning is tried
/// first, so that each search is one descent of the index. Null stands before all values, behind them when descending.
bool RecordsetTable::chercheApres(const std::vector<Valeur> &cles, std::size_t longueur)
{
    for (std::size_t i = longueur; i-- > 0;) {
        std::vector<Valeur> liees;
        QString debut = egalites(cles, i, liees);
        debut = debut.isEmpty() ? u"where "_qs : u"where "_qs + debut + u" and "_qs;
        const bool descendant = m_index->cles[i].descendant;
        if (cles[i].estNull()) {
            if (!descendant && cherche(debut + nomCle(i) + u" is not null"_qs, liees))
                return true;
            continue;
        }
        std::vector<Valeur> bornees = liees;
        bornees.push_back(cles[i]);
        if (cherche(debut + nomCle(i) + (descendant ? u" < ?"_qs : u" > ?"_qs), bornees))
            return true;
        if (descendant && cherche(debut + nomCle(i) + u" is null"_qs, liees))
            return true;
    }
    return false;
}

void RecordsetTable::Seek(QStringView op, const std::vector<Valeur> &cles)
{
    annuleEcriture();
    if (m_index == nullptr)
        throw Erreur(Erreur::ObjetInconnu, u"Aucun index n'est choisi sur la table %1."_qs.arg(table().nom));
    const std::size_t longueur = std::min(cles.size(), m_index->cles.size());
    std::vector<Valeur> converties;
    for (std::size_t i = 0; i < longueur; ++i)
        converties.push_back(convertit(cles[i], typeDuChamp(m_index->cles[i].champ)));

    bool trouve = false;
    if (op == u"=" || op == u">=") {
        std::vector<Valeur> liees;
        const QString condition = egalites(converties, longueur, liees);
        trouve = cherche(u"where "_qs + condition, liees);
    }
    if (!trouve && (op == u">" || op == u">="))
        trouve = chercheApres(converties, longueur);
    m_sansReponse = !trouve;
    if (!trouve)
        m_place = Place::Nulle;
}

bool RecordsetTable::avance()
{
    if (m_flux.active() && recoit())
        return true;
    m_flux.rend();
    if (m_index == nullptr)
        return cherche(u"where rowid > ?"_qs, {m_rowidCle});
    std::vector<Valeur> liees;
    const QString memeCle = egalites(m_cles, m_cles.size(), liees);
    liees.push_back(m_rowidCle);
    return cherche(u"where %1 and rowid > ?"_qs.arg(memeCle), liees) || chercheApres(m_cles, m_cles.size());
}

void RecordsetTable::positionne()
{
    if (m_place == Place::AvantLePremier && !cherche(QString(), {}))
        m_place = Place::Fin;
}

void RecordsetTable::MoveFirst()
{
    annuleEcriture();
    m_place = Place::AvantLePremier;
    positionne();
    if (m_place == Place::Fin)
        throw Erreur(Erreur::PasDeLigne, u"Aucun enregistrement en cours."_qs);
}

void RecordsetTable::Move(qint64 lignes)
{
    annuleEcriture();
    if (lignes < 0)
        throw Erreur(Erreur::PasDeLigne, u"Une table ne se parcourt que vers l'avant."_qs);
    positionne();
    for (; lignes > 0; --lignes) {
        if (m_place != Place::Ligne && m_place != Place::Trou)
            throw Erreur(Erreur::PasDeLigne, u"Aucun enregistrement en cours."_qs);
        if (!avance())
            m_place = Place::Fin;
    }
}

bool RecordsetTable::Eof()
{
    positionne();
    return m_place == Place::Fin;
}

bool RecordsetTable::surUneLigne()
{
    positionne();
    return m_place == Place::Ligne;
}

qint64 RecordsetTable::RecordCount()
{
    return base().valeurUnique(u"select count(*) from [%1]"_qs.arg(table().nom)).entier();
}

/// Reads the current row afresh; the place in the index stays where the walk got to it.
void RecordsetTable::relit()
{
    m_flux.rend();
    Instruction instruction(base(), m_selection + u"where rowid = ?"_qs);
    instruction.lie(1, m_rowid);
    if (!instruction.avance()) {
        m_place = Place::Trou;
        return;
    }
    for (std::size_t i = 0; i < table().champs.size(); ++i)
        m_ligne[i] = instruction.valeur(int(i) + 1, table().champs[i].type);
}

void RecordsetTable::ligneAjoutee(qint64 rowid)
{
    cherche(u"where rowid = ?"_qs, {rowid});
    m_flux.rend();
}

void RecordsetTable::ligneChangee()
{
    relit();
}

void RecordsetTable::ligneRetiree()
{
    m_flux.rend();
    m_place = Place::Trou;
}

} // namespace store
