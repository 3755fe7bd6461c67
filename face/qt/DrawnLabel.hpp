// A label as the ground draws it.
#pragma once

#include "face/qt/DrawnControl.hpp"

#include <QString>

namespace Tessoro {

QFont FontOfLabel(LabelStyle style, const Scale &scale);

class DrawnLabel : public DrawnControl {
public:
  explicit DrawnLabel(Label &shown) : DrawnControl(shown), label(shown) {}

  const QString &Text() const { return text; }

  void Follow(const Scale &scale) override;
  void Draw(QPainter &painter, const GroundLook &look) const override;
  bool StandsForItself() const override { return true; }
  void Click() override { label.UserClick(); }

private:
  QColor Ink(const QPalette &palette) const;
  void DrawLine(QPainter &painter, const QRect &area, const Scale &scale) const;

  Label &label;
  QString text;
};

} // namespace Tessoro
