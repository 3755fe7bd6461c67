// How fields, lists, bars and buttons are drawn.
#pragma once

#include <QProxyStyle>

class QStyleOptionSlider;

namespace Tessoro {

// The same on every desktop. Sizes come from the widgets' own, so that all follows the zoom.
class FormStyle : public QProxyStyle {
public:
  FormStyle();

  void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
  void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                   const QWidget *widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                          QPainter *painter, const QWidget *widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                       SubControl subControl, const QWidget *widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption *option,
                       const QWidget *widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption *option,
                  const QWidget *widget) const override;
  QIcon standardIcon(StandardPixmap picture, const QStyleOption *option,
                     const QWidget *widget) const override;
  int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                QStyleHintReturn *returnData) const override;

private:
  void DrawField(const QStyleOption &option, QPainter &painter) const;
  void DrawButton(const QStyleOption &option, QPainter &painter) const;
  void DrawCombo(const QStyleOptionComplex &option, QPainter &painter, const QWidget *widget) const;
  void DrawBar(const QStyleOptionSlider &option, QPainter &painter, const QWidget *widget) const;
};

} // namespace Tessoro
