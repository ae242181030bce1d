#include "product/ProductListeners.h"

#include <utility>

#include "CATPrsWorkModeServices.h"
#include "framework/Misuse.h"
#include "product/ProductModel.h"

namespace standin {
namespace {

struct Listeners {
  RedrawListener Redraw;
  WorkModeListener WorkMode;
};

Listeners& TheListeners() {
  static auto* const listeners = new Listeners;
  return *listeners;
}

}  // namespace

void SetRedrawListener(RedrawListener listener) {
  TheListeners().Redraw = std::move(listener);
}
void SetWorkModeListener(WorkModeListener listener) {
  TheListeners().WorkMode = std::move(listener);
}

void TellRedraw(const CATBaseUnknown_var& product) {
  // A copy, as the listener may set another one.
  const RedrawListener listener = TheListeners().Redraw;
  if (listener) listener(product);
}

}  // namespace standin

void CATPrsWorkModeServices::SetWorkMode(const CATIProduct_var& product, int mode) {
  if (!product) standin::EndOnMisuse("The work mode of no product was set.");
  const standin::WorkModeListener listener = standin::TheListeners().WorkMode;
  if (listener) listener(product, mode);
}
