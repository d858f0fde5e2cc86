#ifndef DXMD_MATERIALIZE_DXMATERIALIZERESPONSEHELPER_H
#define DXMD_MATERIALIZE_DXMATERIALIZERESPONSEHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/materialize/DXMaterializeRequestHelper.h>

/// The answers to the tasks of a materialisation request: the "materializeResponse" document.
///
/// Written: build and hand back, always empty. Read: `Take` keeps the element, `GetResponse` reads it.
///
/// A helper is used by one thread at a time.
class DXMD_API DXMaterializeResponseHelper : public ActionHandlerBase {
 public:
  /// A response without answers.
  DXMaterializeResponseHelper();
  ~DXMaterializeResponseHelper() override;

  /// Finds the answer to a task under the task's name (see `DXMaterializeRequestHelper::GetTaskName`). Returns false,
  /// leaving `response` as it is, when there is none or when it does not begin with text.
  bool GetResponse(DXMaterializeRequestHelper::ETasks task, I18NString& response);

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;
  void doTake(TRNIDOM_Element& elem) override;

 private:
  TRNIDOM_Element m_responseRoot;
};

#endif
