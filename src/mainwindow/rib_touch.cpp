#include "mainwindow/rib_touch.h"

#include "mainwindow/picture_reach.h"
#include "output/screen_plot.h"
#include "platform/qt_plot_device.h"
#include "platform/qt_text.h"
#include "programme/essai_rib.h"

#include <QApplication>
#include <QKeyEvent>
#include <QToolTip>

namespace loftwing {

namespace {

PasDeTire PasDe(const QMouseEvent &mouse) {
    return mouse.modifiers().testFlag(Qt::AltModifier) ? PasDeTire::fin : PasDeTire::entier;
}

} // namespace

RibTouch::RibTouch(const Programme &programme, PicView &picture, Demandes demandes)
    : programme_(programme), picture_(picture), demandes_(std::move(demandes)) {
    picture_.setMouseTracking(true);
    picture_.installEventFilter(this);
}

void RibTouch::Active(bool active) {
    active_ = active;
    Renonce();
    survole_ = choisi_ = {};
    picture_.MontreTouche(nullptr);
}

SujetTrace RibTouch::Sous(const QPointF &place) const {
    if (!active_ || picture_.Dessin() == nullptr || !RibVisible(programme_.rib)) {
        return {};
    }
    return SujetAu(*picture_.Dessin(), PictureReach::Place(place), PictureReach::kReach);
}

bool RibTouch::EncoreLa(const SujetTrace &sujet) const {
    if (!sujet || picture_.Dessin() == nullptr || !RibVisible(programme_.rib)) {
        return false;
    }
    const std::vector<SujetTrace> &all = picture_.Dessin()->Sujets();
    return std::find(all.begin(), all.end(), sujet) != all.end();
}

void RibTouch::Souligne() {
    const SujetTrace &shown = survole_ ? survole_ : choisi_;
    picture_.MontreTouche(EncoreLa(shown)
                              ? loftwing::Souligne(*picture_.Dessin(), shown, PictureReach::kColour)
                              : nullptr);
}

void RibTouch::MontreBulle(const QPointF &place, const std::string &text) const {
    QToolTip::showText(picture_.mapToGlobal(place.toPoint()), Q(text), &picture_);
}

void RibTouch::Survole(const QMouseEvent &mouse) {
    const SujetTrace found = Sous(mouse.position());
    if (found == survole_ && picture_.ToucheMontree()) {
        return;
    }
    survole_ = found;
    Souligne();
    if (!found) {
        picture_.unsetCursor();
        QToolTip::hideText();
        return;
    }
    picture_.setCursor(LieuDuSujet(programme_.rib, found) ? Qt::OpenHandCursor
                                                          : Qt::PointingHandCursor);
    MontreBulle(mouse.position(), DitSujet(programme_.rib, found, programme_.SaisieEnCours()));
}

void RibTouch::Prend(const QMouseEvent &mouse) {
    choisi_ = Sous(mouse.position());
    survole_ = choisi_;
    Souligne();
    if (const auto place = LieuDuSujet(programme_.rib, choisi_)) {
        tire_ = {choisi_, mouse.position(), *place, picture_.NumeroDuDessin(), false};
    }
}

/// Where the part would stand with the pointer there. Upside down the picture's heights run the
/// other way, but for those of the text.
LieuRib RibTouch::LieuVoulu(const QPointF &place) const {
    const double mm = kUnitsPerPixel / (kUnitsPerMm * Wide(programme_.rib.Zoom));
    const QPointF by = (place - tire_->from) * mm;
    const bool turned = programme_.rib.AffHaut && tire_->sujet.genre != GenreSujet::texte;
    return {tire_->start.x + by.x(), tire_->start.y + (turned ? by.y() : -by.y())};
}

void RibTouch::Bouge(const QMouseEvent &mouse) {
    if (!Tient()) {
        Renonce();
        return;
    }
    const double far = (mouse.position() - tire_->from).manhattanLength();
    if (!tire_->moving && far < QApplication::startDragDistance()) {
        return;
    }
    tire_->moving = true;
    picture_.setCursor(Qt::ClosedHandCursor);
    picture_.MontreTouche(nullptr);
    auto drawing = std::make_unique<Recording>(ScreenAdvance);
    std::string words;
    const auto put = [&](RibModel &rib, const Saisie &saisie) {
        PlaceSujet(rib, tire_->sujet, LieuVoulu(mouse.position()), PasDe(mouse), saisie);
        words = DitSujet(rib, tire_->sujet, saisie);
        return true;
    };
    const bool shown = DessineEssai(programme_, put, *drawing);
    picture_.MontreEssai(shown ? std::move(drawing) : nullptr);
    MontreBulle(mouse.position(), words);
}

void RibTouch::Lache(const QMouseEvent &mouse) {
    const Tire pulled = *tire_;
    const LieuRib place = LieuVoulu(mouse.position());
    Renonce();
    if (pulled.moving && pulled.dessin == picture_.NumeroDuDessin()) {
        demandes_.depose(pulled.sujet, place, PasDe(mouse));
        survole_ = {};
        Souligne();
    }
}

void RibTouch::Renonce() {
    if (tire_ && tire_->moving) {
        picture_.MontreEssai(nullptr);
        picture_.unsetCursor();
        QToolTip::hideText();
    }
    tire_.reset();
}

bool RibTouch::Touche(int key) {
    if (key == Qt::Key_Escape && (tire_ || choisi_)) {
        Renonce();
        survole_ = choisi_ = {};
        Souligne();
        return true;
    }
    if ((key == Qt::Key_Delete || key == Qt::Key_Backspace) && EncoreLa(choisi_) && !tire_) {
        const SujetTrace gone = choisi_;
        survole_ = choisi_ = {};
        demandes_.retire(gone);
        return true;
    }
    return false;
}

bool RibTouch::eventFilter(QObject *watched, QEvent *event) {
    if (!active_) {
        return QObject::eventFilter(watched, event);
    }
    if (event->type() == QEvent::KeyPress) {
        return Touche(static_cast<QKeyEvent *>(event)->key());
    }
    if (event->type() == QEvent::Leave) {
        survole_ = {};
        Souligne();
        return false;
    }
    const auto *mouse = dynamic_cast<QMouseEvent *>(event);
    if (mouse == nullptr) {
        return false;
    }
    if (event->type() == QEvent::MouseMove) {
        if (tire_ && mouse->buttons().testFlag(Qt::LeftButton)) {
            Bouge(*mouse);
        } else if (mouse->buttons() == Qt::NoButton) {
            Survole(*mouse);
        }
    } else if (mouse->button() == Qt::LeftButton) {
        if (event->type() == QEvent::MouseButtonPress) {
            Prend(*mouse);
        } else if (event->type() == QEvent::MouseButtonRelease && tire_) {
            Lache(*mouse);
        } else if (event->type() == QEvent::MouseButtonDblClick) {
            Renonce();
            if (const SujetTrace found = Sous(mouse->position())) {
                demandes_.ouvre(found);
            }
        }
    }
    return false;
}

} // namespace loftwing
