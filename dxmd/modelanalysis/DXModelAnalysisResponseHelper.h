#ifndef DXMD_MODELANALYSIS_DXMODELANALYSISRESPONSEHELPER_H
#define DXMD_MODELANALYSIS_DXMODELANALYSISRESPONSEHELPER_H

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/modelanalysis/DXAnalyzeResponseTaskHelper.h>

/// The issues that a model analysis found, task by task: the "analyzeModelResponse" document.
///
/// Written: build and hand back. Read: not at all.
///
/// A helper is used by one thread at a time.
class DXMD_API DXModelAnalysisResponseHelper : public ActionHandlerBase {
 public:
  /// A name reserved for the help on an issue, beside "caption", "description" and "refTopic" of the vocabulary;
  /// nothing writes it.
  static const I18NString STR_refTopicURL;

  /// A response without tasks.
  DXModelAnalysisResponseHelper();
  ~DXModelAnalysisResponseHelper() override;

  /// Appends a task that succeeded and returns it for the caller to fill. Valid as long as the helper.
  DXAnalyzeResponseTaskHelper* AddTask(DXAnalyzeRequestTaskHelper::ETask task);

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

 private:
  dxmd::OwnedList<DXAnalyzeResponseTaskHelper> m_tasks;
};

#endif
