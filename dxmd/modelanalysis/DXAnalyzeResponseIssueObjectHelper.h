#ifndef DXMD_MODELANALYSIS_DXANALYZERESPONSEISSUEOBJECTHELPER_H
#define DXMD_MODELANALYSIS_DXANALYZERESPONSEISSUEOBJECTHELPER_H

#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>

/// One model object that an issue concerns, with its messages and related objects. Write-only.
///
/// An object is used by one thread at a time.
class DXMD_API DXAnalyzeResponseIssueObjectHelper {
 public:
  /// What the object is in particular; any value but `kSubTypeMeasure` is nothing.
  enum ESubType : int {
    kSubTypeNone = 0,    ///< an empty "subtype"
    kSubTypeMeasure = 1  ///< "measure"
  };

  /// An object related to this one.
  struct SObject {
    I18NString name;       ///< "name"
    I18NString id;         ///< "id"
    I18NString className;  ///< "class"
    I18NString path;       ///< "path"
  };

  /// An object without related objects. Each text becomes an attribute, also when it is empty.
  /// @param name       "name"
  /// @param id         "id"
  /// @param className  "class"
  /// @param path       "path"
  /// @param refclass   "refclass"
  /// @param subtype    "subtype"
  /// @param messages   what is to be said of the object: a "message" each.
  DXAnalyzeResponseIssueObjectHelper(const I18NString& name, const I18NString& id, const I18NString& className,
                                     const I18NString& path, const I18NString& refclass, ESubType subtype,
                                     const std::vector<I18NString>& messages);

  DXAnalyzeResponseIssueObjectHelper(const DXAnalyzeResponseIssueObjectHelper&) = delete;
  DXAnalyzeResponseIssueObjectHelper& operator=(const DXAnalyzeResponseIssueObjectHelper&) = delete;

  /// Appends a related object. Each text becomes an attribute, also when it is empty.
  /// @param name       "name"
  /// @param id         "id"
  /// @param className  "class"
  /// @param path       "path"
  void AddRelatedObject(const I18NString& name, const I18NString& id, const I18NString& className,
                        const I18NString& path);

  /// Appends an "object" to `elem`; unlike other writers it leaves the handle as it is. Every attribute is written,
  /// also when it is empty.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const;

 private:
  I18NString m_name;
  I18NString m_id;
  I18NString m_className;
  I18NString m_path;
  I18NString m_refclass;
  ESubType m_subtype;
  std::vector<I18NString> m_messages;
  dxmd::OwnedList<SObject> m_relatedObjects;
};

#endif
