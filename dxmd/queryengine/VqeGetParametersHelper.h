#ifndef DXMD_QUERYENGINE_VQEGETPARAMETERSHELPER_H
#define DXMD_QUERYENGINE_VQEGETPARAMETERSHELPER_H

#include <utility>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>

/// A list of parameters, each a name and a value: the "parameters" document.
///
/// Written: build and hand back; "parameters" becomes the document element of its document.
/// Read: eagerly; parameters read are added to those already held, and no handle is kept.
/// A helper is used by one thread at a time.
class DXMD_API VqeGetParametersHelper : public ActionHandlerBase {
 public:
  static const I18NString kParmRootTag;    ///< "parameters"
  static const I18NString kParmTag;        ///< "parameter"
  static const I18NString kParmNameAttr;   ///< "name"
  static const I18NString kParmValueAttr;  ///< "value"

  /// An empty list.
  VqeGetParametersHelper();
  ~VqeGetParametersHelper() override;

  /// Replaces the list of (name, value), each of which becomes a "parameter", also when both are empty.
  void SetParameters(const std::vector<std::pair<I18NString, I18NString>>& parameters);

  /// A copy of the list, in the order set or read.
  std::vector<std::pair<I18NString, I18NString>> GetParameters() const;

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// Adds every "parameter" at any depth below the element; a missing attribute is empty.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  std::vector<std::pair<I18NString, I18NString>> m_parameters;
};

#endif
