#ifndef DXMD_QUERYSERVICE_QSPARAMVALUEITEMHIERARCHYHELPER_H
#define DXMD_QUERYSERVICE_QSPARAMVALUEITEMHIERARCHYHELPER_H

#include <memory>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/queryservice/QsParamValueItemHelper.h>
#include <dxmd/queryservice/QsParamValueItemSimpleHelper.h>

/// A value with sub-nodes of its own kind, to any depth.
///
/// Value and sub-nodes are read from the item taken at the first call of their getter, one level at a time; until then
/// the item is written without them.
///
/// An item is used, with those in it, by one thread at a time.
class DXMD_API QsParamValueItemHierarchyHelper : public QsParamValueItemHelper {
 public:
  /// An item without value and sub-nodes.
  QsParamValueItemHierarchyHelper();
  ~QsParamValueItemHierarchyHelper() override;

  /// The value, or null; owned by the item and valid until set again. An item taken that has no value of its own gives
  /// the first value among its sub-nodes.
  QsParamValueItemSimpleHelper* GetValue();

  /// Replaces the value and returns the new one, owned by the item.
  /// @param use        the value.
  /// @param inclusive  non-zero when the value itself belongs to the range it bounds.
  QsParamValueItemSimpleHelper* SetValue(const I18NString& use, int inclusive);

  /// The sub-nodes in order; owned by the item. They are read from the item taken as long as there are none.
  const std::vector<QsParamValueItemHierarchyHelper*>& GetSubNodes();

  /// Appends an empty sub-node and returns it; owned by the item. Sub-nodes not yet read are then never read.
  QsParamValueItemHierarchyHelper* AddSubNode();

  /// Writes "value", if there is one, and "subNodes", which is marked "xsi:nil" when there are none.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// `kValueItemHierarchy`.
  EValueItem GetType() const override { return kValueItemHierarchy; }

  /// "bus:hierarchicalParmValueItem".
  const I18NString& GetTarvoType() const override { return ToString(kTarvoItemHierarchical); }

 private:
  TRNIDOM_Element makeContent(TRNIDOM_Element& item) const;

  dxmd::OwnedList<QsParamValueItemHierarchyHelper> m_subNodes;
  std::unique_ptr<QsParamValueItemSimpleHelper> m_value;
};

#endif
