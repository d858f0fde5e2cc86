#include <dxmd/queryengine/VqeCancelQueryHelper.h>

#include <dxmd/core/Dom.h>
#include <dxmd/resources/Vocabulary.h>

using namespace dxmd;

VqeCancelQueryHelper::VqeCancelQueryHelper() {
  SetProperty(kPropertyCommandID, STR_DXCancelCommand);
  SetProperty(kPropertyRequestID, STR_DXCancelRequest);
}

VqeCancelQueryHelper::~VqeCancelQueryHelper() = default;

void VqeCancelQueryHelper::doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const {
  TRNIDOM_Element cancel = doc.createElement(STR_cancel);
  appendValueElement(cancel, STR_requestID, GetDefaultDXRequestID());
  Incorporate(doc, elem, cancel);
}
