#ifndef DXMD_UPDATEOBJECT_DXUPDATEOBJECTREQUESTHELPER_H
#define DXMD_UPDATEOBJECT_DXUPDATEOBJECTREQUESTHELPER_H

#include <vector>

#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/updateobject/DXUpdateRequestTaskHelper.h>

/// A request to change a model, task by task: the "updateObjectRequest" document.
///
/// Written: build and hand back. Read: eagerly, each "task" of any depth; tasks read are added to those already held
/// and parse their parameters later, from the received document. `Make` then writes of each only what has been parsed:
/// to pass a request on, also after a remapping of its IDs, send the received element.
///
/// A helper is used by one thread at a time.
class DXMD_API DXUpdateObjectRequestHelper : public ActionHandlerBase {
 public:
  /// A request without tasks.
  DXUpdateObjectRequestHelper();

  /// Takes the element at once.
  /// @throws TRNAssertError as `Take` does.
  explicit DXUpdateObjectRequestHelper(TRNIDOM_Element& elem);
  ~DXUpdateObjectRequestHelper() override;

  /// Appends a task and returns it for the caller to fill. Valid as long as the helper.
  DXUpdateRequestTaskHelper* AddTask(DXUpdateRequestTaskHelper::ETask task);

  /// The tasks in the order added or read; they stay owned by the helper.
  const std::vector<DXUpdateRequestTaskHelper*>& GetTasks() const { return m_tasks.items(); }

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// @throws TRNAssertError for a "task" whose name is none; the tasks before it stay.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  dxmd::OwnedList<DXUpdateRequestTaskHelper> m_tasks;
};

#endif
