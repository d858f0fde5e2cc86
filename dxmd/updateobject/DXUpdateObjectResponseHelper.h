#ifndef DXMD_UPDATEOBJECT_DXUPDATEOBJECTRESPONSEHELPER_H
#define DXMD_UPDATEOBJECT_DXUPDATEOBJECTRESPONSEHELPER_H

#include <vector>

#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/core/OwnedList.h>
#include <dxmd/updateobject/DXUpdateRequestTaskHelper.h>
#include <dxmd/updateobject/DXUpdateResponseTaskHelper.h>

/// The answer to an update-object request, task by task: the "updateObjectResponse" document.
///
/// Written: build and hand back. Read: eagerly, each "task" of any depth; tasks read are added to those already held
/// and parse parameters and errors later, from the received document. `Make` then writes of each only what has been
/// parsed: to pass a response on, send the received element.
///
/// A helper is used by one thread at a time.
class DXMD_API DXUpdateObjectResponseHelper : public ActionHandlerBase {
 public:
  /// A response without tasks.
  DXUpdateObjectResponseHelper();

  /// Takes the element at once.
  /// @throws TRNAssertError as `Take` does.
  explicit DXUpdateObjectResponseHelper(TRNIDOM_Element& elem);
  ~DXUpdateObjectResponseHelper() override;

  /// Appends a task that succeeded and returns it for the caller to fill. Valid as long as the helper.
  DXUpdateResponseTaskHelper* AddTask(DXUpdateRequestTaskHelper::ETask task);

  /// The first task of that kind, owned by the helper; null when there is none.
  DXUpdateResponseTaskHelper* GetTask(DXUpdateRequestTaskHelper::ETask task) const;

  /// The tasks in the order added or read; they stay owned by the helper.
  const std::vector<DXUpdateResponseTaskHelper*>& GetTasks() const { return m_tasks.items(); }

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;

  /// @throws TRNAssertError for a "task" whose name is none; the tasks before it stay.
  void doTake(TRNIDOM_Element& elem) override;

 private:
  dxmd::OwnedList<DXUpdateResponseTaskHelper> m_tasks;
};

#endif
