#pragma once

#include "store/database.h"

#include <map>
#include <memory>

namespace store {

/// What the two kinds of recordset share: the fields, the row being written, and the writing itself. The operations are
/// those of Recordset.
class RecordsetBase
{
public:
    RecordsetBase(std::shared_ptr<BaseOuverte> ouverte, const Table *table)
        : m_ouverte(std::move(ouverte))
        , m_table(table)
    {
    }
    virtual ~RecordsetBase() = default;
    Q_DISABLE_COPY_MOVE(RecordsetBase)

    virtual void Index(QStringView nom);
    virtual void Seek(QStringView op, const std::vector<Valeur> &cles);
    bool NoMatch() const { return m_sansReponse; }
    virtual bool Eof() = 0;
    virtual void MoveFirst() = 0;
    virtual void Move(qint64 lignes) = 0;
    virtual qint64 RecordCount() = 0;

    void AddNew();
    void Edit();
    void Update();
    void Delete();

    /// Place of the field \p nom, counted from 0; -1 when there is none of that name.
    virtual int place(QStringView nom) const = 0;
    /// Field of the row being written or, without one, of the current row. Throws without either.
    Valeur lit(int place);
    /// Puts \p valeur, converted, into the row being written. Throws without one.
    void ecrit(int place, const Valeur &valeur);

protected:
    /// Whether a row is current.
    virtual bool surUneLigne() = 0;
    /// Row id of the current row, and its field \p place: there is a current row.
    virtual qint64 rowid() = 0;
    virtual Valeur champ(int place) = 0;
    virtual TypeChamp typeDuChamp(int place) const = 0;
    /// Called when the row \p rowid has just been added, changed, or removed.
    virtual void ligneAjoutee(qint64 rowid) = 0;
    virtual void ligneChangee() = 0;
    virtual void ligneRetiree() = 0;

    BaseNative &base() const { return m_ouverte->base; }
    const Table &table() const { return *m_table; }
    void exigeLigne();
    void annuleEcriture();

    std::shared_ptr<BaseOuverte> m_ouverte;
    const Table *m_table;
    bool m_sansReponse = false;

private:
    enum class Ecriture { Aucune, Ajout, Changement };

    void exigeTable() const;
    void insere();
    void change();

    Ecriture m_ecriture = Ecriture::Aucune;
    std::map<int, Valeur> m_tampon;
};

/// Walks a whole table along one of its indexes, always on the rows as they are now: the place is the key on which the
/// recordset stood when it got there, and the next row is the first one behind that key.
class RecordsetTable final : public RecordsetBase
{
public:
    RecordsetTable(std::shared_ptr<BaseOuverte> ouverte, const Table *table);
    ~RecordsetTable() override;
    Q_DISABLE_COPY_MOVE(RecordsetTable)

    void Index(QStringView nom) override;
    void Seek(QStringView op, const std::vector<Valeur> &cles) override;
    bool Eof() override;
    void MoveFirst() override;
    void Move(qint64 lignes) override;
    qint64 RecordCount() override;
    int place(QStringView nom) const override;

protected:
    bool surUneLigne() override;
    qint64 rowid() override { return m_rowid; }
    Valeur champ(int place) override;
    TypeChamp typeDuChamp(int place) const override;
    void ligneAjoutee(qint64 rowid) override;
    void ligneChangee() override;
    void ligneRetiree() override;

private:
    enum class Place { AvantLePremier, Ligne, Trou, Fin, Nulle };

    void positionne();
    bool avance();
    bool cherche(const QString &condition, const std::vector<Valeur> &valeurs);
    bool chercheApres(const std::vector<Valeur> &cles, std::size_t longueur);
    bool recoit();
    void relit();
    QString nomCle(std::size_t cle) const;
    QString egalites(const std::vector<Valeur> &cles, std::size_t nombre, std::vector<Valeur> &liees) const;

    const IndexTable *m_index = nullptr;
    QString m_selection;
    QString m_ordre;
    Place m_place = Place::AvantLePremier;
    qint64 m_rowid = 0;
    std::vector<Valeur> m_ligne;
    std::vector<Valeur> m_cles;
    qint64 m_rowidCle = 0;
    Instruction m_flux;
};

/// Rows that a statement gave when it was opened.
class RecordsetRequete final : public RecordsetBase
{
public:
    /// \p table is the table whose rows can be changed, null when none can.
    RecordsetRequete(std::shared_ptr<BaseOuverte> ouverte, const QString &sql, const Table *table, bool avecRowid);

    bool Eof() override { return m_courante >= m_lignes.size(); }
    void MoveFirst() override;
    void Move(qint64 lignes) override;
    qint64 RecordCount() override { return qint64(m_lignes.size()); }
    int place(QStringView nom) const override { return m_places.value(cleNom(nom), -1); }

protected:
    bool surUneLigne() override { return !m_retiree && m_courante < m_lignes.size(); }
    qint64 rowid() override { return m_lignes[m_courante].rowid; }
    Valeur champ(int place) override { return m_lignes[m_courante].champs[std::size_t(place)]; }
    TypeChamp typeDuChamp(int place) const override { return m_types[std::size_t(place)]; }
    void ligneAjoutee(qint64 rowid) override;
    void ligneChangee() override;
    void ligneRetiree() override;

private:
    struct Ligne
    {
        qint64 rowid = 0;
        std::vector<Valeur> champs;
    };

    Ligne litLigne(const Instruction &instruction) const;
    Ligne ligneDuRowid(qint64 rowid) const;

    bool m_avecRowid;
    QHash<QString, int> m_places;
    std::vector<TypeChamp> m_types;
    std::vector<Ligne> m_lignes;
    std::size_t m_courante = 0;
    bool m_retiree = false;
};

} // namespace store
