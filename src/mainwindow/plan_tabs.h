/// Building plan, front view and list of parts of a wing, as the windows of a panel and of a wing
/// show them.
#pragma once

#include "mainwindow/plan_view.h"
#include "programme/liste_pieces.h"
#include "programme/programme.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QHBoxLayout;

namespace loftwing {

/// Tabs with the plan from above, the view from the front and the list, each with what saves and
/// prints it. A tab is drawn when it is looked at.
class PlanTabs : public QTabWidget {
    Q_OBJECT

  public:
    explicit PlanTabs(Programme &programme);

    /// A tab of the window's own, before the others.
    void PoseApercu(QWidget &apercu);

    /// What is asked before something is saved or printed: whether the wing is as it was typed and
    /// may be written (why not has been told then), and what its files are proposed to be called.
    void DemandeAvant(std::function<bool()> pret, std::function<std::string()> nom);

    /// `feuilles`: what was nested of its pieces.
    void Montre(Aile aile, FeuillesPieces feuilles = {});
    /// There is no wing; the tabs say why.
    void MontreManque(std::string mots);

  Q_SIGNALS:
    /// Something was written; words that say so.
    void Enregistre(const QString &mots);

  private:
    static constexpr int kVues = 2; ///< from above, from the front
    static constexpr int kBoutonsVue = 3;

    Programme &programme_;
    std::function<bool()> pret_ = [] { return true; };
    std::function<std::string()> nom_ = [] { return std::string(); };
    std::optional<Aile> aile_;
    FeuillesPieces feuilles_;
    std::string manque_;
    std::array<bool, kVues + 1> a_jour_{}; ///< of the views and the list

    std::array<PlanView, kVues> Vue;
    std::array<std::array<QToolButton, kBoutonsVue>, kVues> cmdvue; ///< larger, smaller, all of it
    QCheckBox chkdeux;
    QPushButton cmdplan;
    QPushButton cmdimprimerplan;
    QPlainTextEdit Liste;
    QPushButton cmdliste;
    QPushButton cmdimprimerliste;

    void NameAll();
    void PoseTextes();
    void LayOut();
    void Connect();
    QHBoxLayout *RangeeDeVue(int vue);
    void Perime();
    void MontreCourant();
    void MontreVue(int vue);
    void MontreListe();

    // plan_tabs_sorties.cpp
    std::vector<DessinPlan> Dessins() const;
    std::vector<TableauPieces> Tables() const;
    std::string NomDeListe() const;
    void ConnectSorties();
    void Sort(void (PlanTabs::*sortie)());
    void Dit(LngKey mots, const std::string &path);
    void EnregistrePlan();
    void EnregistreListe();
    void ImprimePlan();
    void ImprimeListe();
};

} // namespace loftwing
