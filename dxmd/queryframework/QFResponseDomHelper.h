#ifndef DXMD_QUERYFRAMEWORK_QFRESPONSEDOMHELPER_H
#define DXMD_QUERYFRAMEWORK_QFRESPONSEDOMHELPER_H

#include <map>
#include <vector>

#include <trn/I18NString.h>
#include <trnidom/TRNIDOM_Element.h>

#include <dxmd/core/ActionHandlerBase.h>
#include <dxmd/core/Export.h>
#include <dxmd/queryframework/QFExecuteCommandHelper.h>

/// Reads the query framework's reply to an execute command: query feedbacks, data sources, columns and rows.
///
/// Read: `Take` keeps a handle to the response element, and every getter walks it on demand. Before `Take`, and where
/// the reply lacks a part, getters give false, nothing, or a null element. Nothing is written.
/// Getters that fill a vector append to it. A helper is used by one thread at a time.
class DXMD_API QFResponseDomHelper : public ActionHandlerBase {
 public:
  /// A connection that the query used; texts are empty where the reply has none.
  struct DataSource {
    I18NString connection;   ///< "value" of the "connection" element
    I18NString catalog;      ///< its "catalog"
    I18NString schema;       ///< its "schema"
    I18NString modelDSName;  ///< its "modelDSName": the data source's name in the model
  };

  /// The properties of a column, each an attribute of its element in "columnList".
  enum EColumnProp : int {
    kColumnPropName = 1,                            ///< "name"
    kColumnPropSqlName = 2,                         ///< "sqlName"
    kColumnPropType = 3,                            ///< "type"
    kColumnPropScale = 4,                           ///< "scale"
    kColumnPropLength = 5,                          ///< "length"
    kColumnPropPrecision = 6,                       ///< "precision"
    kColumnPropNullsAllowed = 7,                    ///< "nullsAllowed"
    kColumnPropCollationSequenceName = 8,           ///< "collationSequenceName"
    kColumnPropCollationSequenceLevel = 9,          ///< "collationSequenceLevel"
    kColumnPropOriginalCollationSequenceName = 10,  ///< "originalCollationSequenceName"
    kColumnPropOriginalEncodingName = 11            ///< "originalEncodingName"
  };

  /// A reply without anything until one is taken.
  QFResponseDomHelper();
  ~QFResponseDomHelper() override;

  /// Gives the text that the service reported for a kind of query feedback.
  /// @return whether there is one; `value` is untouched otherwise.
  bool GetQueryFeedback(QFExecuteCommandHelper::EQueryFeedback kind, I18NString& value) const;

  /// Gives the node value of the first child of the first query feedback property of that name that has a child. That
  /// is the property's text, unless it begins with something else: an element's value is empty.
  /// @return whether there is one; `value` is untouched otherwise.
  bool ExtractRetrieveProperty(const I18NString& name, I18NString& value) const;

  /// Appends the connections that the query used.
  void GetResponseDataSources(std::vector<DataSource>& sources) const;

  /// Appends a map of all eleven properties for each column; a property that the reply lacks is empty.
  /// @throws TRNAssertError when anything but elements stands between the columns, white space included; the columns
  ///         before it have been appended.
  void GetColumnList(std::vector<std::map<EColumnProp, I18NString>>& columns) const;

  /// The first row of the result, or null.
  TRNIDOM_Element GetFirstResultSetRow() const;

  /// The row after that one, or null.
  TRNIDOM_Element GetNextResultSetRow(TRNIDOM_Element row) const;

  /// Appends the row's values; one without a text is empty. A null row has none.
  void GetResultSetRowValues(TRNIDOM_Element row, std::vector<I18NString>& values) const;

 protected:
  void doTake(TRNIDOM_Element& element) override;

 private:
  TRNIDOM_Element m_responseElement;
};

#endif
