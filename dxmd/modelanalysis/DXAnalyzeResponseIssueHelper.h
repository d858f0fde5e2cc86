#ifndef DXMD_MODELANALYSIS_DXANALYZERESPONSEISSUEHELPER_H
#define DXMD_MODELANALYSIS_DXANALYZERESPONSEISSUEHELPER_H

#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/modelanalysis/DXAnalyzeResponseIssueObjectHelper.h>

/// One issue that a model analysis found, with the objects it concerns. Write-only.
///
/// An issue is used by one thread at a time.
class DXMD_API DXAnalyzeResponseIssueHelper {
 public:
  /// An issue without objects.
  /// @param name  what was found: "name".
  explicit DXAnalyzeResponseIssueHelper(const I18NString& name);

  DXAnalyzeResponseIssueHelper(const DXAnalyzeResponseIssueHelper&) = delete;
  DXAnalyzeResponseIssueHelper& operator=(const DXAnalyzeResponseIssueHelper&) = delete;

  /// Appends an object and returns it for the caller to add related objects. Valid as long as this one. The arguments
  /// are those of DXAnalyzeResponseIssueObjectHelper.
  DXAnalyzeResponseIssueObjectHelper* AddObject(const I18NString& name, const I18NString& id,
                                                const I18NString& className, const I18NString& path,
                                                const I18NString& refclass,
                                                DXAnalyzeResponseIssueObjectHelper::ESubType subtype,
                                                const std::vector<I18NString>& messages);

  /// The objects in the order added; they stay owned by this one.
  const std::vector<DXAnalyzeResponseIssueObjectHelper*>& GetObjects() const { return m_objects.items(); }

  /// Hands back a new "issue" with its objects.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const;

 private:
  I18NString m_name;
  dxmd::OwnedList<DXAnalyzeResponseIssueObjectHelper> m_objects;
};

#endif
