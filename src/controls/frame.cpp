#include "controls/frame.h"

namespace tavrune {

Frame::Frame(QWidget* parent) : QGroupBox(parent), Control(this) { wear(designFont()); }

}  // namespace tavrune
