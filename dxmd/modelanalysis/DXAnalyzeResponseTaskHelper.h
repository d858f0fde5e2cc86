#ifndef DXMD_MODELANALYSIS_DXANALYZERESPONSETASKHELPER_H
#define DXMD_MODELANALYSIS_DXANALYZERESPONSETASKHELPER_H

#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/modelanalysis/DXAnalyzeRequestTaskHelper.h>
#include <dxmd/modelanalysis/DXAnalyzeResponseIssueHelper.h>

/// What one task of a model analysis found. Write-only.
///
/// A task is used by one thread at a time.
class DXMD_API DXAnalyzeResponseTaskHelper {
 public:
  /// A task that succeeded and found nothing.
  explicit DXAnalyzeResponseTaskHelper(DXAnalyzeRequestTaskHelper::ETask task);

  DXAnalyzeResponseTaskHelper(const DXAnalyzeResponseTaskHelper&) = delete;
  DXAnalyzeResponseTaskHelper& operator=(const DXAnalyzeResponseTaskHelper&) = delete;

  /// Appends an issue and returns it for the caller to add its objects. Valid as long as the task.
  DXAnalyzeResponseIssueHelper* AddIssue(const I18NString& name);

  /// The issues in the order added; they stay owned by the task.
  const std::vector<DXAnalyzeResponseIssueHelper*>& GetIssues() const { return m_issues.items(); }

  /// Sets the status: "failure" for 0, "success" for any other value.
  void SetSuccess(int success) { m_success = success; }

  /// Hands back a new "task" with its issues.
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const;

 private:
  DXAnalyzeRequestTaskHelper::ETask m_task;
  int m_success = 1;
  dxmd::OwnedList<DXAnalyzeResponseIssueHelper> m_issues;
};

#endif
