#ifndef DXMD_MODELANALYSIS_DXMODELANALYSISREQUESTHELPER_H
#define DXMD_MODELANALYSIS_DXMODELANALYSISREQUESTHELPER_H

#include <vector>

#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/modelanalysis/DXAnalyzeRequestTaskHelper.h>

/// A request to run checks over a model: the "analyzeModelRequest" document.
///
/// Written: build and hand back. Read: eagerly, each "task" of any depth; tasks read are added to those already held.
///
/// A helper is used by one thread at a time.
class DXMD_API DXModelAnalysisRequestHelper : public ActionHandlerBase {
 public:
  /// A request without tasks.
  DXModelAnalysisRequestHelper();
  ~DXModelAnalysisRequestHelper() override;

  /// Appends a task and returns it for the caller to fill. Valid as long as the helper.
  DXAnalyzeRequestTaskHelper* AddTask(DXAnalyzeRequestTaskHelper::ETask task);

  /// The tasks in the order added or read; they stay owned by the helper.
  const std::vector<DXAnalyzeRequestTaskHelper*>& GetTasks() const { return m_tasks.items(); }

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;
  /// @throws TRNAssertError for a task whose name is none, and as `DXAnalyzeRequestTaskHelper::doTake` does; what was
  ///         read before it stays.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  dxmd::OwnedList<DXAnalyzeRequestTaskHelper> m_tasks;
};

#endif
