#include <dxmd/core/ActionHandlerBase.h>

#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_DocumentType.h>

#include <dxmd/resources/Vocabulary.h>

ActionHandlerBase::~ActionHandlerBase() = default;

void ActionHandlerBase::Make(TRNIDOM_Element& elem) const {
  TRNIDOM_Document document =
      TRNIDOM_DOMImplementation::getInstance().createDocument(STR_empty, STR_requestDoc, TRNIDOM_DocumentType());
  doMake(document, elem);
}

void ActionHandlerBase::Take(TRNIDOM_Element& elem) {
  doTake(elem);
}

void ActionHandlerBase::doMake(TRNIDOM_Document&, TRNIDOM_Element&) const {}

void ActionHandlerBase::doTake(TRNIDOM_Element&) {}
