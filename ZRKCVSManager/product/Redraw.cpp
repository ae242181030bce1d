#include "product/Redraw.h"

#include "CATIRedrawEvent.h"

namespace zrk::product {

void Redraw(const CATBaseUnknown_var& object) {
  if (const CATIRedrawEvent_var event{object}) event->Redraw();
}

}  // namespace zrk::product
