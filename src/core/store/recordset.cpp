#include "store/recordset.h"

#include "store/recordset_base.h"

namespace store {

ChampCourant &ChampCourant::operator=(const Valeur &valeur)
{
    m_jeu.ecrit(m_place, valeur);
    return *this;
}

ChampCourant &ChampCourant::operator=(const ChampCourant &autre)
{
    if (this != &autre)
        m_jeu.ecrit(m_place, autre.valeur());
    return *this;
}

Valeur ChampCourant::valeur() const
{
    return m_jeu.lit(m_place);
}

Recordset::Recordset(std::unique_ptr<RecordsetBase> jeu)
    : m_jeu(std::move(jeu))
{
}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset &&) noexcept = default;
Recordset &Recordset::operator=(Recordset &&) noexcept = default;

RecordsetBase &Recordset::jeu() const
{
    if (m_jeu == nullptr)
        throw Erreur(Erreur::Ferme, u"Ce résultat est déjà fermé."_qs);
    return *m_jeu;
}

void Recordset::Index(QStringView nom)
{
    jeu().Index(nom);
}

void Recordset::Seek(QStringView op, std::initializer_list<Valeur> cles)
{
    jeu().Seek(op, cles);
}

bool Recordset::NoMatch() const
{
    return jeu().NoMatch();
}

bool Recordset::Eof() const
{
    return jeu().Eof();
}

void Recordset::MoveFirst()
{
    jeu().MoveFirst();
}

void Recordset::MoveNext()
{
    jeu().Move(1);
}

void Recordset::Move(qint64 lignes)
{
    jeu().Move(lignes);
}

qint64 Recordset::RecordCount() const
{
    return jeu().RecordCount();
}

void Recordset::AddNew()
{
    jeu().AddNew();
}

void Recordset::Edit()
{
    jeu().Edit();
}

void Recordset::Update()
{
    jeu().Update();
}

void Recordset::Delete()
{
    jeu().Delete();
}

void Recordset::Close()
{
    m_jeu.reset();
}

ChampCourant Recordset::operator[](QStringView nom) const
{
    const int place = jeu().place(nom);
    if (place < 0)
        throw Erreur(Erreur::ChampInconnu, u"Le champ %1 n'existe pas."_qs.arg(nom));
    return ChampCourant(jeu(), place);
}

ChampCourant Recordset::operator[](int place) const
{
    return ChampCourant(jeu(), place);
}

} // namespace store
