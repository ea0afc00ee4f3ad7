#include "calculators/CTeiler.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>

#include "calculators/Schematics.h"
#include "shell/FormRegistry.h"
#include "shell/MDIForm1.h"
#include "shell/PictureBox.h"
#include "shell/core/Module1.h"
#include "shell/core/NumberFormat.h"

QUARZEL_REGISTER_FORM("CTeiler", CTeiler);

namespace {

DividerForm::Parts capacitors() {
  return {"&C1 (Kondensator):", "C2 (&Kondensator):", "ComboC1", "ComboC2", units::capacitance(),
          divider::capacitancePlacement(), eseries::Part::Capacitor};
}

}  // namespace

CTeiler::CTeiler()
    : DividerForm("CTeiler", "Kapazitiver Spannungsteiler/Anpassung", capacitors(), "Spule &L1", "L1 berechnen") {
  // C1 over C2, R1 at the tap, R2 and the coil L1 of the tuned circuit across both.
  picture()->setDrawing([](QPainter& p, const QRectF& r) {
    drawMatchingDivider(p, r, {schematics::Element::Capacitor, "C1", schematics::Element::Capacitor, "C2",
                               schematics::Element::Coil, "L1"});
  });
}

divider::Run CTeiler::run(const divider::Values& values, const divider::Empty& empty) {
  return cteiler::compute(values, empty);
}

void CTeiler::handOver() {
  const double f = Module1::ParseNumber(field(divider::Freq)->text());
  const double c1 = read(field(divider::Part1), combo(divider::Part1));
  const double c2 = read(field(divider::Part2), combo(divider::Part2));
  if (c1 == 0 || c2 == 0) return;
  CalcForm* form = loadResonantCircuit();
  if (!form) return;
  QApplication::processEvents();
  setComboIndex(form, "ComboF", combo(divider::Freq)->currentIndex());
  setFieldText(form, "Text1", numfmt::plain(f));
  writePlaced(form, "Text3", "ComboC", units::capacitance(), cteiler::handOverPlacement(),
              cteiler::seriesCapacitance(c1, c2), cteiler::kHandOverPattern);
  setFieldText(form, "Text2", QString());
  form->setTag("L1");
  QApplication::processEvents();
  mainWindow()->showChild(form);
}
