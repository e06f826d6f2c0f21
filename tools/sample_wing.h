/// The wing that comes with the program, in the window for wing panels.
#pragma once

#include "mainwindow/frmplanches.h"
#include "programme/programme.h"
#include "utilities/panneau.h"

#include <QDialog>

#include <memory>
#include <string>

namespace loftwing {

/// That wing as the window has it after both of these.
Panneau SampleWing(Programme &programme, const std::string &folder);

/// The ribs of a panel on sheets of these sizes, for both wings, as soon as they are laid.
std::unique_ptr<frmplanches> SheetsOf(Programme &programme, Panneau &panel, const char *sizes,
                                      QWidget *parent);

/// Gives the window both ribs, which lie in `folder`, and the spacing of the tour. The rib of the
/// programme stays what it is.
void OpenSampleWing(QDialog &panel, Programme &programme, const std::string &folder);

/// Types where its second hole ends, once the window has listed what the ribs carry.
void EndHoleOfSampleWing(QDialog &panel, const Programme &programme);

} // namespace loftwing
