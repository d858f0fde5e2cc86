#ifndef DXMD_MATERIALIZE_DXMATERIALIZEREQUESTHELPER_H
#define DXMD_MATERIALIZE_DXMATERIALIZEREQUESTHELPER_H

#include <array>
#include <map>
#include <optional>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>

/// A request to load a data file into a table, or to materialise a query subject or a result set, in a target data
/// source: the "materializeRequest" document.
///
/// Written: build and hand back. Read: `Take` keeps the element; each getter reads it when it is called, and all but
/// `GetParameter` only while the helper holds nothing of what they return. What they read is then held, and written.
///
/// Password and ticket are written as plain text.
///
/// A helper is used by one thread at a time.
class DXMD_API DXMaterializeRequestHelper : public ActionHandlerBase {
 public:
  /// What to do.
  enum ETasks : int {
    kTaskUnknown = 0,                  ///< no task; written as "unknown", and read from any other text
    kTaskGenLoadDataFromFile = 1,      ///< "genLoadDataFromFile": generate the load of a file
    kTaskLoadDataFromFile = 2,         ///< "loadDataFromFile": load a file into a table
    kTaskMaterializeQuerySubject = 3,  ///< "materializeQuerySubject" when read, "genLoadDataFromFile" when written
    kTaskMaterializeResultSet = 4      ///< "materializeResultSet" when read, "genLoadDataFromFile" when written
  };

  /// What a parameter's value is.
  enum EParameters : int {
    kParamDataFilePath = 1,     ///< "dataFilePath"
    kParamTableName = 2,        ///< "tableName"
    kParamColumnDelimiter = 3,  ///< "columnDelimiter"
    kParamRowDelimiter = 4,     ///< "rowDelimiter"
    kParamDataEncoding = 5,     ///< "dataEncoding"
    kParamObjectID = 6          ///< "objectID"
  };

  /// Where to load to. Each text belongs to whoever filled the structure; null when absent.
  struct TargetDataSource {
    I18NString* type = nullptr;              ///< "type", the one attribute; the rest are texts of elements
    I18NString* database = nullptr;          ///< "database"
    I18NString* connectionString = nullptr;  ///< "connectionString"
    I18NString* reserved = nullptr;          ///< neither stored nor filled
    I18NString* userName = nullptr;          ///< "username"
    I18NString* password = nullptr;          ///< "password"
    I18NString* ssoTicket = nullptr;         ///< "SSOTicket", of a single sign-on
  };

  /// The name under which a request carries the task and a response answers it: "genLoadDataFromFile" for both
  /// materialise tasks too, and "unknown" for any other value. A received request may name each task by its own text.
  static const I18NString& GetTaskName(ETasks task);

  /// The text of a parameter; "unknown" for any other value.
  static const I18NString& GetParameterName(EParameters parameter);

  /// A request without tasks, target data source, parameters and result set.
  DXMaterializeRequestHelper();
  ~DXMaterializeRequestHelper() override;

  /// Appends a task unless the helper holds it already.
  void AddTask(ETasks task);

  /// The tasks in the order added; while there are none, those of the received element, of which each that is not
  /// recognised gives `kTaskUnknown`. Valid as long as the helper.
  const std::vector<ETasks>& GetTasks();

  /// Keeps a copy of each text given; a null one leaves what was kept before.
  void SetTargetDataSource(const TargetDataSource& source);

  /// What is kept of the target data source; while that is nothing, that of the received element, whose type is then
  /// never null. The texts stay owned by the helper and are valid until the next `SetTargetDataSource`.
  TargetDataSource GetTargetDataSourceInfo();

  /// Sets a parameter, a "param" with "name" and "value"; a later value replaces an earlier one.
  void AddParameter(EParameters parameter, const I18NString& value);

  /// Finds a parameter of the received element. Returns false, leaving `value` as it is, when it has none, when no
  /// element was received, and always once `AddParameter` was called.
  bool GetParameter(EParameters parameter, I18NString& value);

  /// Sets the subtree, of any document, that stands for the result set; it is copied when the request is written.
  void SetResultSet(const TRNIDOM_Element& resultSet) { m_resultSet = resultSet; }

  /// The result set; while there is none, that of the received element. Null when that has none either.
  TRNIDOM_Element GetResultSet();

 protected:
  void doMake(TRNIDOM_Document& doc, TRNIDOM_Element& elem) const override;
  void doTake(TRNIDOM_Element& elem) override;

 private:
  void parseTargetDataSource();

  std::vector<ETasks> m_tasks;
  TRNIDOM_Element m_requestRoot;
  TRNIDOM_Element m_resultSet;
  std::map<EParameters, I18NString> m_parameters;
  std::array<std::optional<I18NString>, 6> m_targetDataSource;
};

#endif
