#include "Messages.h"

#include <map>
#include <memory>
#include <ostream>
#include <set>
#include <utility>

#include <trn/I18NLocale.h>
#include <trnidom/TRNIDOM_DOMImplementation.h>
#include <trnidom/TRNIDOM_Document.h>
#include <trnidom/TRNIDOM_DocumentType.h>
#include <trnidom/TRNIDOM_Helper.h>
#include <trnidom/TRNIDOM_NodeList.h>
#include <trnidom/TRNIDOM_Parser.h>

#include <dxmd/core/DimensionInfoHelper.h>
#include <dxmd/materialize/DXMaterializeRequestHelper.h>
#include <dxmd/materialize/DXMaterializeResponseHelper.h>
#include <dxmd/modelactions/DXActionHelperDBConnection.h>
#include <dxmd/modelactions/DXActionHelperDBConnections.h>
#include <dxmd/modelactions/DXActionHelperIQDFile.h>
#include <dxmd/modelactions/DXActionHelperImportConfig.h>
#include <dxmd/modelactions/DXActionHelperObjectAccess.h>
#include <dxmd/modelactions/DXActionHelperRetargetObjectReferences.h>
#include <dxmd/modelactions/DXActionHelperSecurityObjectSpec.h>
#include <dxmd/modelactions/DXExternalizeReportHelper.h>
#include <dxmd/modelactions/DXPackagesReportHelper.h>
#include <dxmd/modelanalysis/DXModelAnalysisRequestHelper.h>
#include <dxmd/modelanalysis/DXModelAnalysisResponseHelper.h>
#include <dxmd/queryengine/VqeCancelQueryHelper.h>
#include <dxmd/queryengine/VqeExpandParameterHelper.h>
#include <dxmd/queryengine/VqeGetJoinPathsHelper.h>
#include <dxmd/queryengine/VqeGetParametersHelper.h>
#include <dxmd/queryengine/VqeQuerySubjectHelper.h>
#include <dxmd/queryengine/VqeRefineObjectsHelper.h>
#include <dxmd/queryengine/VqeTestConnectionHelper.h>
#include <dxmd/queryframework/QFCloseConnectionsCommandHelper.h>
#include <dxmd/queryframework/QFJoinQueryHelper.h>
#include <dxmd/queryframework/QFModelSetQueryHelper.h>
#include <dxmd/queryframework/QFResponseDomHelper.h>
#include <dxmd/queryframework/QFUpdateCommandHelper.h>
#include <dxmd/queryframework/QFValidateCommandHelper.h>
#include <dxmd/queryservice/GetSimpleNodeValue.h>
#include <dxmd/queryservice/QsApiConnectHelper.h>
#include <dxmd/queryservice/QsDataSourceFaultHelper.h>
#include <dxmd/queryservice/QsParamValueItemHierarchyHelper.h>
#include <dxmd/queryservice/QsParamValueItemNullHelper.h>
#include <dxmd/queryservice/QsParamValueItemRangeHelper.h>
#include <dxmd/queryservice/QsParamValueItemSimpleHelper.h>
#include <dxmd/updateobject/DXActionFeedbackHelper.h>
#include <dxmd/updateobject/DXUpdateObjectRequestHelper.h>
#include <dxmd/updateobject/DXUpdateObjectResponseHelper.h>

namespace dxmd_test {

namespace {

using Element = TRNIDOM_Element;
using Line = Answers::Line;
using Texts = std::vector<I18NString>;

// Longer than what a text keeps inside itself.
const char* const kLong = "a text that is too long to be kept inside of the object that stands for it";

Element parse(const char* xml) {
  return TRNIDOM_Parser::parseString(xml).getDocumentElement();
}

Element made(const ActionHandlerBase& helper) {
  Element element;
  helper.Make(element);
  return element;
}

bool isDocument(const Element& element) {
  return element.getNodeType() == TRNIDOM_Node::DOCUMENT_NODE;
}

// By family: how examples are made, and what the getters of a helper that took one give (`answer`).

// queryframework

Element makeExecute() {
  const I18NLocale locale("en");
  QFExecuteCommandHelper command(kLong, &locale);
  Element connection = parse("<connection><name value='n'/></connection>");
  command.SetConnection(connection);
  QFQueryHelper* query = command.AddQuery("q");
  for (const char* name : {"item", "item", kLong}) query->AddDataItem(name, kLong)->tag = "t";
  query->AddDetailFilter(kLong, QFQueryDetailFilter::kUseRequired);
  query->AddHint(QFQueryHelper::kQueryHintAutoSort, "minimal");
  query->SetQueryRef("other");
  command.AddJoinQuery("join", "q", "1:1", "q", "0:N", kLong);
  command.AddModelSetQuery("set", {"a", kLong}, "UNION", "remove");
  command.AddExecuteProperty(kLong, kLong);
  command.AddRequestHint(QFExecuteCommandHelper::kRequestHintDesignMode, "true");
  command.AddQueryFeedback(QFExecuteCommandHelper::kQueryFeedbackColumnList);
  command.SetQOSSeverityLevel(QFExecuteCommandHelper::kQOSSeverityWarning);
  return made(command);
}

constexpr char kResponse[] =
    "<response><queryFeedbackResult><property name='nativeCommandText'>select a from a rather long table</property>"
    "<property name='connections'>c</property><connection catalog='c' modelDSName='m' schema='s' value='v'/>"
    "</queryFeedbackResult><columnList><column name='a' sqlName='A' type='int'/><column name='b'/></columnList>"
    "<resultData><row><value v='1'/><value v='2'/></row><row><value v='a rather long value of a row'/></row>"
    "</resultData></response>";

void answer(Line& line, const QFResponseDomHelper& response, Element& tree) {
  for (int kind = 0; kind <= 6; ++kind) {
    I18NString text;
    line << response.GetQueryFeedback(QFExecuteCommandHelper::EQueryFeedback(kind), text) << text;
  }
  std::vector<QFResponseDomHelper::DataSource> sources;
  response.GetResponseDataSources(sources);
  for (const auto& source : sources) line << source.connection << source.catalog << source.schema << source.modelDSName;
  const auto valuesOf = [&](const Element& row) {
    Texts values;
    response.GetResultSetRowValues(row, values);
    return values;
  };
  for (Element row = response.GetFirstResultSetRow(); !row.isNull(); row = response.GetNextResultSetRow(row))
    line << valuesOf(row);
  line << valuesOf(tree) << response.GetNextResultSetRow(tree).isNull();
  std::vector<std::map<QFResponseDomHelper::EColumnProp, I18NString>> columns;
  response.GetColumnList(columns);
  for (const auto& column : columns) Answers::require(column.size() == 11, "a column has 11 properties");
  line << columns;
}

Element makeValidate() {
  QFValidateCommandHelper command;
  command.SetProperty(QFCommandHelper::kPropertyCommandID, kLong);
  return made(command);
}

constexpr char kValidateReply[] =
    "<response><message severity='information'>a message with a rather long text</message><message severity='error'/>"
    "<message severity='warning'>w</message><message severity='fatal'>f</message><x severity='odd'/></response>";

void readValidateReply(Element& tree, Answers& answers) {
  answers.ask([&](Line& line) {
    TRNSeverity severity = kSeverityFatal;
    I18NString messages;
    QFValidateCommandHelper().CheckReponse(tree, severity, messages);
    Answers::require(severity == kSeverityNone || !messages.empty(), "a severity comes with messages");
    line << severity << messages;
  });
}

void makeOver(Element& tree) {
  QFValidateCommandHelper().Make(tree);
  Answers::require(tree.getNodeName() == "command", "the handle stands on what was made");
}

Element makeUpdate() {
  QFUpdateCommandHelper command("m");
  command.AddUpdateSubject(kLong, kLong);
  command.AddUpdateSubject("b", "c");
  return made(command);
}

constexpr char kCommandWithConnection[] =
    "<command><connection><connection><name value='n'/><dataSourceType value='t'/></connection></connection>"
    "<testConnection/><execute><Metadata value='a'/></execute></command>";

void addConnection(Element& tree) {
  Element connection = parse("<connection><connection><name value='n'/></connection></connection>");
  QFCommandHelper::AddConnection(tree, connection);
}

void addAsConnection(Element& tree) {
  Element command = parse("<command><connection><connection/></connection><testConnection/></command>");
  QFCommandHelper::AddConnection(command, tree);
}

// queryservice

Element makeConnection() {
  QsApiConnectHelper connection;
  connection.SetNamespace("n");
  connection.SetUserName("u");
  connection.SetPassword(kLong);
  connection.SetPassport("p");
  connection.SetContentManagerURI(kLong);
  connection.SetRunLocale(I18NLocale("en"));
  connection.SetProductLocale(I18NLocale("de"));
  connection.SetSessionID(1);
  connection.SetModelPath(kLong);
  connection.AddProperty("k", kLong);
  connection.SetRetainConnection(true);
  connection.SetDisableAuthentication(false);
  connection.AddModel("m", true);
  return made(connection);
}

void refreshConnection(Element& tree) {
  const I18NLocale locale("fr");
  QsApiConnectHelper::RefreshRequest(tree, kLong, &locale, &locale);
}

constexpr char kFault[] =
    "<fault><faultcode>c</faultcode><faultstring>a fault with a rather long text</faultstring>"
    "<faultDataSource value='a'/><faultConnection><name value='a name longer than a text holds'/><x><signon>"
    "<name value='s'/></signon><signon/></x></faultConnection><faultSignon><name value='s'/>"
    "<searchPath value='longer than what a text holds in place'/></faultSignon><dataSource><name value='a'/>"
    "<type value='t'/><connection><name value='a'/><connectionString value='also longer than a text holds'/><signon>"
    "<name value='b'/></signon></connection></dataSource></fault>";

void write(Line& line, const QsDataSourceFaultHelper::ConnectionInfo* connection) {
  if (connection == nullptr) return;
  line << connection->name << connection->searchPath << connection->connectionString;
  for (const auto* signon : connection->signons) line << signon->name << signon->searchPath;
}

void answer(Line& line, QsDataSourceFaultHelper& fault, Element&) {
  line << fault.GetFaultCode() << fault.GetFaultSubCode() << fault.GetFaultString() << fault.GetFaultSubString()
       << fault.GetFaultDataSourceName();
  write(line, fault.GetFaultConnection());
  Answers::require(fault.GetFaultConnection() == fault.GetFaultConnection(), "the connection stays the same");
  if (const auto* signon = fault.GetFaultSignon()) line << signon->name << signon->searchPath;
  Answers::require(fault.GetFaultSignon() == fault.GetFaultSignon(), "the signon stays the same");
  for (const char* name : {"a", "b", ""}) {
    QsDataSourceFaultHelper::DataSourceInfo info;
    line << fault.GetDataSourceInfo(name, info) << info.name << info.type;
    for (const auto* connection : info.connections) write(line, connection);
    write(line, info.GetConnectionInfo("a"));
  }
}

Element makeSimpleItem() {
  QsParamValueItemSimpleHelper item(1, kLong);
  item.SetDisplay(kLong);
  return made(item);
}

Element makeRangeItem() {
  QsParamValueItemRangeHelper item;
  item.SetStart(kLong, 1)->SetDisplay("d");
  item.SetEnd("e", 0);
  return made(item);
}

Element makeHierarchyItem() {
  QsParamValueItemHierarchyHelper item;
  item.SetValue(kLong, 1);
  for (int i = 0; i < 2; ++i) item.AddSubNode()->AddSubNode()->SetValue("v", 0);
  return made(item);
}

// Without recursion: the sender decides how deep it goes.
void ask(QsParamValueItemHierarchyHelper& root, Answers& answers) {
  std::vector<QsParamValueItemHierarchyHelper*> open{&root};
  while (!open.empty()) {
    QsParamValueItemHierarchyHelper* const node = open.back();
    open.pop_back();
    answers.ask([&](Line& line) {
      if (const auto* value = node->GetValue()) line << value->GetUse() << value->GetDisplay() << value->IsInclusive();
      line << node->GetSubNodes().size();
    });
    open.insert(open.end(), node->GetSubNodes().begin(), node->GetSubNodes().end());
  }
}

void readItem(Element& tree, Answers& answers) {
  const std::unique_ptr<QsParamValueItemHelper> item(
      QsParamValueItemHelper::Create(tree.getAttribute("xsi:type"), tree));
  if (item == nullptr) return;
  item->Take(tree);
  answers.ask(
      [&](Line& line) { line << item->GetType() << item->GetTarvoType() << item->IsInclusive() << made(*item); });
  answers.ask([&](Line& line) {
    if (const auto* simple = dynamic_cast<QsParamValueItemSimpleHelper*>(item.get()))
      line << simple->GetUse() << simple->GetDisplay();
    if (auto* range = dynamic_cast<QsParamValueItemRangeHelper*>(item.get()))
      for (const auto* bound : {range->GetStart(), range->GetEnd()})
        if (bound != nullptr) line << bound->GetUse() << bound->IsInclusive();
  });
  if (auto* hierarchy = dynamic_cast<QsParamValueItemHierarchyHelper*>(item.get())) ask(*hierarchy, answers);
  answers.ask([&](Line& line) { line << made(*item); });
}

void readHierarchy(Element& tree, Answers& answers) {
  // Below a document there are children to walk, but no descendants to ask for.
  if (isDocument(tree)) return;
  QsParamValueItemHierarchyHelper node;
  node.Take(tree);
  ask(node, answers);
  Element first = made(node);
  QsParamValueItemHierarchyHelper again;
  again.Take(first);
  Answers unasked;
  ask(again, unasked);
  Answers::require(TRNIDOM_Writer::toString(first) == TRNIDOM_Writer::toString(made(again)),
                   "a hierarchy is written as it was read");
  answers.ask([&](Line& line) { line << first; });
}

constexpr char kSimpleNode[] = "<a><n>a value longer than what a text holds in place</n><x>b</x></a>";

void readSimpleNode(Element& tree, Answers& answers) {
  answers.ask([&](Line& line) {
    I18NString value("none");
    const bool found = GetSimpleNodeValue(tree, "n", value);
    Answers::require(found || value == "none", "what is not found stays as it was");
    line << found << value;
  });
}

// queryengine

Element makeExpand() {
  const I18NLocale locale("en");
  VqeExpandParameterHelper command(kLong);
  command.SetParameterisedValue(kLong);
  command.SetQueryLocale(&locale);
  command.AddQueryFeedback(QFExecuteCommandHelper::kQueryFeedbackColumnList);
  return made(command);
}

constexpr char kExpansion[] =
    "<response><expansionResult>an expression that is rather long</expansionResult><x/></response>";

void answer(Line& line, const VqeExpandParameterHelper& command, Element&) {
  line << command.GetExpandedQuery();
}

Element makeParameters() {
  VqeGetParametersHelper helper;
  helper.SetParameters({{"a", kLong}, {kLong, ""}});
  return made(helper);
}

void answer(Line& line, const VqeGetParametersHelper& helper, Element& tree) {
  Answers::require(tree.getElementsByTagName("parameter").getLength() == helper.GetParameters().size(),
                   "every parameter is read");
  line << helper.GetParameters() << made(helper);
}

Element makeGetJoinPaths() {
  VqeGetJoinPathsHelper command(kLong);
  for (const char* item : {"a", "", kLong}) command.AddItem(item);
  return made(command);
}

constexpr char kJoinPaths[] =
    "<response><joinPath><join>a</join><join>a join of a rather long name</join></joinPath><x/></response>";

void answer(Line& line, const VqeGetJoinPathsHelper& command, Element&) {
  std::set<I18NString> joins;
  command.GetJoins(joins);
  Answers::require(command.PathExists() || joins.empty(), "joins stand in paths");
  line << command.PathExists() << joins;
}

Element makeRefine() {
  VqeRefineObjectsHelper command(kLong);
  Element element = made(command);
  for (const char* object : {"a", kLong}) command.addRequestObject(object);
  return element;
}

constexpr char kRefined[] =
    "<response><expression>a</expression><expression>an object of a rather long name</expression></response>";

void readRefined(Element& tree, Answers& answers) {
  VqeRefineObjectsHelper command("m");
  command.Take(tree);
  I18NString object;
  while (answers.call([&] { return command.getResponseObject(object); })) {
    Answers::require(!object.empty(), "an object has an identifier");
    answers.ask([&](Line& line) { line << object; });
  }
}

constexpr char kDefinition[] =
    "<definition><dbQuery><sql type='veltra'>select a from a rather long table</sql><x/></dbQuery></definition>";

void readDefinition(Element& tree, Answers& answers) {
  answers.ask([&](Line& line) { line << made(VqeQuerySubjectHelper("m", tree)); });
}

Element makeTestConnection() {
  return made(VqeTestConnectionHelper("d", kLong, "s", "u", kLong, kLong, "p", "n"));
}

// core

Element makeDimInfo() {
  DimensionInfoHelper helper;
  helper.AddLevel("Year", kLong, {"k", kLong}, 1, {"a"});
  helper.AddLevel(kLong, "k", {}, 0, {});
  helper.AddHierarchy("Calendar", {"l", kLong});
  return made(helper);
}

void readDimInfo(Element& tree, Answers& answers) {
  const DimensionInfoHelper helper;
  answers.ask([&](Line& line) { line << helper.getLevelsElement(tree) << helper.getHierarchiesElement(tree); });
}

// modelactions

Element makeDBConnection() {
  DXActionHelperDBConnection connection;
  connection.setDatabase("d");
  connection.setConnectionString(kLong);
  connection.setDbType("t");
  connection.setCatalog("c");
  connection.setSchema("s");
  connection.setUserName("u");
  connection.setPassword(kLong);
  return made(connection);
}

Element makeDBConnections() {
  DXActionHelperDBConnections list;
  Element elements[] = {makeDBConnection(), makeDBConnection()};
  for (Element& element : elements) list.addDom(element);
  return made(list);
}

void readDBConnections(Element& tree, Answers& answers) {
  DXActionHelperDBConnections list;
  list.Take(tree);
  for (Element& element : list.getDomVector()) {
    DXActionHelperDBConnection connection;
    connection.Take(element);
    answers.ask([&](Line& line) {
      line << connection.getDatabase() << connection.getCatalog() << connection.getSchema() << connection.getDbType()
           << connection.getConnectionString() << connection.getUserName() << connection.getPassword();
    });
  }
  list.addDom(tree);
  answers.ask([&](Line& line) { line << made(list); });
}

Element makeDefinitionFile() {
  DXActionHelperIQDFile file;
  file.setFilePath(kLong);
  file.setDbConnectionName("c");
  file.setCmDataSource("d");
  for (const char* text : {"a", "", kLong, "a", "b"}) file.addContentLine(text);
  return made(file);
}

void answer(Line& line, const DXActionHelperIQDFile& file, Element&) {
  line << file.getFilePath() << file.getDbConnectionName() << file.getCmDataSource() << file.getContents()
       << made(file);
}

constexpr char kImportConfig[] =
    "<source queryType='relational' interfaceType='a rather long type of interface' pluginName='p'>"
    "<connection provider='p'><item name='a name that is rather long' nameInRequest='r'/><item/></connection>"
    "<capabilities><item name='n' value='a value that is rather long'/></capabilities></source>";

void answer(Line& line, const DXActionHelperImportConfig& config, Element&) {
  I18NString query, plugin, interface, provider;
  line << config.getQueryType(query) << query << config.getPluginName(plugin) << plugin
       << config.getInterfaceType(interface) << interface << config.getConnectionProvider(provider) << provider;
  std::vector<DXActionHelperImportConfig::ConnectionItem> items;
  config.getConnectionItems(items);
  for (const auto& item : items) line << item.name << item.nameInRequest;
  std::vector<DXActionHelperImportConfig::ConfigItem> capabilities;
  config.getCapabilities(capabilities);
  for (const auto& item : capabilities) line << item.name << item.value;
}

Element makeObjectAccess() {
  DXActionHelperObjectAccess access;
  Element element = made(access);
  for (const char* path : {"a", kLong, "a"})
    access.addEntry({path, "d", DXActionHelperSecurityObject::kRole}, DXActionHelperObjectAccess::kAllow);
  access.addEntry({"c", kLong, "t"}, DXActionHelperObjectAccess::kDeny);
  return element;
}

void write(Line& line, const DXActionHelperSecurityObject& object) {
  line << object.cmSearchPath << object.displayPath << object.type;
}

void answer(Line& line, const DXActionHelperObjectAccess& access, Element&) {
  std::vector<DXActionHelperObjectAccess::SecurityObjectAccess> entries;
  access.getEntries(entries);
  for (const auto& entry : entries) {
    write(line, *entry.securityObject);
    line << entry.rule;
  }
  line << access.isUnspecifiedForAllEntries();
}

void addObjectAccess(Element& tree) {
  DXActionHelperObjectAccess access;
  access.Take(tree);
  access.addEntry({"u", "", DXActionHelperSecurityObject::kUser}, DXActionHelperObjectAccess::kAllow);
  access.isUnspecifiedForAllEntries();
}

Element makeSecurityObjects() {
  DXActionHelperSecurityObjectSpec spec;
  Element element = made(spec);
  std::vector<DXActionHelperSecurityObjectSpec::ViewInfo> views(2, DXActionHelperSecurityObjectSpec::ViewInfo("v"));
  views[0].addPackageRef(kLong);
  for (const char* path : {"a", kLong}) spec.addEntry({path, "d", "t"}, views);
  return element;
}

constexpr char kNestedViews[] =
    "<securityObjects><securityObject type='t'><displayPath>d</displayPath><cmSearchPath>a</cmSearchPath><view>"
    "<viewref>v</viewref><view><viewref>w</viewref>a package of a rather long name</view></view></securityObject>"
    "</securityObjects>";

void readSecurityObjects(Element& tree, Answers& answers) {
  DXActionHelperSecurityObjectSpec spec;
  spec.Take(tree);
  std::vector<DXActionHelperSecurityObjectSpec::ViewInfo> views;
  const auto next = [&] {
    views.clear();
    return spec.getEntry(views);
  };
  for (auto object = answers.call(next); !object.isNull(); object = answers.call(next))
    answers.ask([&](Line& line) {
      write(line, *object);
      for (const auto& view : views) {
        Texts packages;
        view.getPackageRefs(packages);
        line << view.getViewRef() << packages;
      }
    });
}

void addSecurityObject(Element& tree) {
  DXActionHelperSecurityObjectSpec spec;
  spec.Take(tree);
  spec.addEntry({"u", "", "t"}, {});
  std::vector<DXActionHelperSecurityObjectSpec::ViewInfo> views;
  while (!spec.getEntry(views).isNull()) continue;
}

Element makeRetarget() {
  DXActionHelperRetargetObjectReferences retarget;
  Element element = made(retarget);
  for (const char* reference : {"a", kLong, "a"})
    retarget.addEntry(reference, kLong, {DXActionHelperRetargetObjectReferences::ItemToUpdate{"i", 1}, {kLong, 0}});
  return element;
}

void answer(Line& line, const DXActionHelperRetargetObjectReferences& retarget, Element&) {
  for (const auto& entry : retarget.getEntries()) {
    line << entry.m_currentRefValue;
    for (const auto& update : entry.m_updateInfoList) {
      line << update.m_newRefValue;
      for (const auto& item : update.m_itemsToUpdate) line << item.m_itemID << item.m_processDescendants;
    }
  }
}

void addRetarget(Element& tree) {
  DXActionHelperRetargetObjectReferences retarget;
  retarget.Take(tree);
  retarget.addEntry("a", "a", DXActionHelperRetargetObjectReferences::ItemToUpdate{"a", 1});
  retarget.getEntries();
}

Element makeExternalizeReport() {
  DXExternalizeReportHelper report;
  for (int i = 0; i < 3; ++i) report.AddEntry(new DXExternalizeReportHelper::Entry{"o", kLong, "p", "e"});
  return made(report);
}

void answer(Line& line, const DXExternalizeReportHelper& report, Element&) {
  for (const auto* entry : report.GetEntries()) line << entry->objectID << entry->method << entry->path << entry->error;
  line << made(report);
}

Element makePackages() {
  DXPackagesReportHelper packages;
  packages.AddPackage("n", kLong);
  packages.AddPackage(kLong, "");
  return made(packages);
}

void answer(Line& line, const DXPackagesReportHelper& packages, Element&) {
  for (const auto* package : packages.GetPackages()) line << package->defaultName << package->searchPath;
  line << made(packages);
}

// updateobject

using RequestTask = DXUpdateRequestTaskHelper;
using ResponseTask = DXUpdateResponseTaskHelper;

Element makeUpdateRequest() {
  DXUpdateObjectRequestHelper request;
  RequestTask* task = request.AddTask(RequestTask::kTaskAddProperty);
  task->AddParameter(RequestTask::kParamPropertyType, "filter", "");
  task->AddParameter(RequestTask::kParamPropertyValue, parse("<refs><refobj>a</refobj><refobj>b</refobj></refs>"));
  for (const char* locale : {"en", "de", ""}) task->AddParameter(RequestTask::kParamCaption, kLong, locale);
  task->AddParameter(RequestTask::kParamObjectID, kLong, "");
  request.AddTask(RequestTask::kTaskRemoveObject)->AddParameter(RequestTask::kParamObjectID, "i", "");
  return made(request);
}

void readUpdateRequest(Element& tree, Answers& answers) {
  DXUpdateObjectRequestHelper request;
  request.Take(tree);
  for (RequestTask* task : request.GetTasks()) {
    answers.ask([&](Line& line) {
      std::vector<RequestTask::ParamValue*> values;
      for (int parameter = 0; parameter <= RequestTask::kParamDimensionRef; ++parameter) {
        if (!task->GetParameter(RequestTask::EParameter(parameter), values)) continue;
        RequestTask::ParamValue* first = nullptr;
        Answers::require(task->GetParameter(RequestTask::EParameter(parameter), first) && first == values[0],
                         "a parameter has a first value");
        line << parameter;
        for (const auto* value : values) line << value->locale << value->value << value->element;
      }
    });
    Texts ids;
    while (answers.call([&] { return task->GetNextIDParameters(ids); })) answers.ask([&](Line& line) { line << ids; });
  }
  answers.ask([&](Line& line) { line << made(request); });
}

void remapUpdateRequest(Element& tree) {
  DXUpdateObjectRequestHelper request(tree);
  Texts ids;
  for (RequestTask* task : request.GetTasks())
    while (task->GetNextIDParameters(ids)) {
      for (I18NString& id : ids) id += "x";
      task->UpdateCurrentIDParameters(ids);
    }
}

Element makeUpdateResponse() {
  DXUpdateObjectResponseHelper response;
  ResponseTask* task = response.AddTask(RequestTask::kTaskAddObject);
  task->SetStatus(ResponseTask::kStatusFailure);
  for (const char* value : {"a", kLong}) task->AddParameter(ResponseTask::kParamObject, value);
  task->SetError("c", kLong);
  DXActionFeedbackHelper feedback;
  feedback.AddEntry(feedback.AddEntry(DXFeedbackEntry::kEntryError, kLong, "n"), DXFeedbackEntry::kEntryInfo, "t", "");
  task->SetFeedback(feedback);
  response.AddTask(RequestTask::kTaskRemoveObject)->AddParameter(ResponseTask::kParamProperty, "p");
  return made(response);
}

void answer(Line& line, const DXUpdateObjectResponseHelper& response, Element& tree) {
  const TRNIDOM_NodeList elements = tree.getElementsByTagName("task");
  std::size_t number = 0;
  for (ResponseTask* task : response.GetTasks()) {
    Answers::require(task->GetFeedback() == TRNIDOM_Helper::findFirstElement(elements.item(number++), "feedback"),
                     "a task's feedback is the first in it");
    for (int parameter = 0; parameter <= ResponseTask::kParamObject; ++parameter) {
      Texts values;
      line << task->GetParameter(ResponseTask::EParameter(parameter), values) << values;
    }
    if (const auto* error = task->GetError()) line << error->code << error->message;
    line << task->GetTask() << task->GetStatus() << task->GetFeedback();
  }
  line << (response.GetTask(RequestTask::kTaskAddObject) != nullptr) << made(response);
}

Element makeFeedback() {
  DXActionFeedbackHelper feedback;
  DXFeedbackEntry* entry = feedback.AddEntry(DXFeedbackEntry::kEntryError, kLong, kLong);
  feedback.AddEntry(entry, DXFeedbackEntry::kEntryInfo, "i", "")->AddEntry(DXFeedbackEntry::kEntryWarning, "", "n");
  feedback.AddEntry(DXFeedbackEntry::kEntryTrace, "t", "n");
  return made(feedback);
}

void answer(Line& line, DXActionFeedbackHelper& feedback, Element& tree) {
  I18NString text;
  feedback.Render(text);
  DXFeedbackEntry::Render(tree, "\t", text);
  line << feedback.IsEmpty() << text;
}

// materialize

using Materialize = DXMaterializeRequestHelper;

Element makeMaterializeRequest() {
  Materialize request;
  request.AddTask(Materialize::kTaskGenLoadDataFromFile);
  request.AddTask(Materialize::kTaskLoadDataFromFile);
  I18NString text(kLong);
  I18NString type("t");
  request.SetTargetDataSource({&type, &text, &text, &text, &type, &text, &text});
  request.AddParameter(Materialize::kParamTableName, kLong);
  request.AddParameter(Materialize::kParamObjectID, "o");
  request.SetResultSet(parse("<query name='q'/>"));
  return made(request);
}

void answer(Line& line, Materialize& request, Element&) {
  line << request.GetTasks();
  const Materialize::TargetDataSource source = request.GetTargetDataSourceInfo();
  for (const I18NString* text : {source.type, source.database, source.connectionString, source.reserved,
                                 source.userName, source.password, source.ssoTicket})
    line << (text != nullptr ? *text : I18NString("null"));
  for (int parameter = 0; parameter <= Materialize::kParamObjectID; ++parameter) {
    I18NString value;
    line << request.GetParameter(Materialize::EParameters(parameter), value) << value;
  }
  line << request.GetResultSet() << made(request);
}

constexpr char kMaterializeResponse[] =
    "<materializeResponse><genLoadDataFromFile><response>a statement that is rather long</response>"
    "</genLoadDataFromFile><loadDataFromFile><response>r</response></loadDataFromFile></materializeResponse>";

void answer(Line& line, DXMaterializeResponseHelper& response, Element&) {
  for (int task = 0; task <= Materialize::kTaskMaterializeResultSet; ++task) {
    I18NString text;
    line << response.GetResponse(Materialize::ETasks(task), text) << text;
  }
}

// modelanalysis

using AnalyzeTask = DXAnalyzeRequestTaskHelper;

Element makeAnalyzeRequest() {
  DXModelAnalysisRequestHelper request;
  AnalyzeTask* task = request.AddTask(AnalyzeTask::kTaskDoSpecifiedChecks);
  task->AddCheck(AnalyzeTask::kCheckAmbiguousCardinality);
  task->AddCheck(AnalyzeTask::kCheckCircularDependency);
  for (const char* object : {"a", kLong}) task->AddObject(object);
  return made(request);
}

void answer(Line& line, const DXModelAnalysisRequestHelper& request, Element&) {
  for (const AnalyzeTask* task : request.GetTasks()) line << task->GetTask() << task->GetChecks() << task->GetObjects();
  line << made(request);
}

Element makeAnalyzeResponse() {
  DXModelAnalysisResponseHelper response;
  DXAnalyzeResponseTaskHelper* task = response.AddTask(AnalyzeTask::kTaskDoSpecifiedChecks);
  task->SetSuccess(0);
  DXAnalyzeResponseIssueHelper* issue = task->AddIssue(kLong);
  for (const char* name : {"n", kLong})
    issue->AddObject(name, "i", "c", kLong, "r", DXAnalyzeResponseIssueObjectHelper::kSubTypeMeasure, {"m", kLong})
        ->AddRelatedObject("n", kLong, "c", "p");
  return made(response);
}

/// The example in that text.
template <const char* xml>
Element example() {
  return parse(xml);
}

/// An example that a new helper writes.
template <typename Helper>
Element makeNew() {
  return made(Helper());
}

/// Has a helper that is made from the arguments take the element and answer.
template <typename Helper, const char*... arguments>
void reads(Element& tree, Answers& answers) {
  Helper helper(arguments...);
  helper.Take(tree);
  answers.ask([&](Line& line) { answer(line, helper, tree); });
}

constexpr char kModel[] = "m";

}  // namespace

const std::vector<Message>& allMessages() {
  static const std::vector<Message> all = {
      {"queryframework", "execute", makeExecute},
      {"queryframework", "response", example<kResponse>, reads<QFResponseDomHelper>},
      {"queryframework", "closeConnections", makeNew<QFCloseConnectionsCommandHelper>},
      {"queryframework", "validate", makeValidate},
      {"queryframework", "validateReply", example<kValidateReply>, readValidateReply, makeOver},
      {"queryframework", "update", makeUpdate},
      {"queryframework", "commandWithConnection", example<kCommandWithConnection>, nullptr, addConnection},
      {"queryframework", "connectionOfCommand", example<kCommandWithConnection>, nullptr, addAsConnection},
      {"queryservice", "connection", makeConnection, nullptr, refreshConnection},
      {"queryservice", "dataSourceFault", example<kFault>, reads<QsDataSourceFaultHelper>},
      {"queryservice", "simpleItem", makeSimpleItem, readItem},
      {"queryservice", "rangeItem", makeRangeItem, readItem},
      {"queryservice", "hierarchyItem", makeHierarchyItem, readItem},
      {"queryservice", "nullItem", makeNew<QsParamValueItemNullHelper>, readItem},
      {"queryservice", "hierarchy", makeHierarchyItem, readHierarchy},
      {"queryservice", "simpleNode", example<kSimpleNode>, readSimpleNode},
      {"queryengine", "cancelQuery", makeNew<VqeCancelQueryHelper>},
      {"queryengine", "expandParameter", makeExpand},
      {"queryengine", "expansionResult", example<kExpansion>, reads<VqeExpandParameterHelper, kModel>},
      {"queryengine", "getParameters", makeParameters, reads<VqeGetParametersHelper>},
      {"queryengine", "getJoinPaths", makeGetJoinPaths},
      {"queryengine", "joinPaths", example<kJoinPaths>, reads<VqeGetJoinPathsHelper, kModel>},
      {"queryengine", "refineObjects", makeRefine},
      {"queryengine", "refinedObjects", example<kRefined>, readRefined},
      {"queryengine", "querySubject", example<kDefinition>, readDefinition},
      {"queryengine", "testConnection", makeTestConnection},
      {"core", "dimInfo", makeDimInfo, readDimInfo},
      {"modelactions", "dbConnections", makeDBConnections, readDBConnections},
      {"modelactions", "definitionFile", makeDefinitionFile, reads<DXActionHelperIQDFile>},
      {"modelactions", "importConfig", example<kImportConfig>, reads<DXActionHelperImportConfig>},
      {"modelactions", "objectAccess", makeObjectAccess, reads<DXActionHelperObjectAccess>, addObjectAccess},
      {"modelactions", "securityObjects", makeSecurityObjects, readSecurityObjects, addSecurityObject},
      {"modelactions", "nestedViews", example<kNestedViews>, readSecurityObjects},
      {"modelactions", "retargetObjectReferences", makeRetarget, reads<DXActionHelperRetargetObjectReferences>,
       addRetarget},
      {"modelactions", "externalizeReport", makeExternalizeReport, reads<DXExternalizeReportHelper>},
      {"modelactions", "packages", makePackages, reads<DXPackagesReportHelper>},
      {"updateobject", "updateObjectRequest", makeUpdateRequest, readUpdateRequest, remapUpdateRequest},
      {"updateobject", "updateObjectResponse", makeUpdateResponse, reads<DXUpdateObjectResponseHelper>},
      {"updateobject", "feedback", makeFeedback, reads<DXActionFeedbackHelper>},
      {"materialize", "materializeRequest", makeMaterializeRequest, reads<Materialize>},
      {"materialize", "materializeResponse", example<kMaterializeResponse>, reads<DXMaterializeResponseHelper>},
      {"modelanalysis", "analyzeModelRequest", makeAnalyzeRequest, reads<DXModelAnalysisRequestHelper>},
      {"modelanalysis", "analyzeModelResponse", makeAnalyzeResponse},
  };
  return all;
}

std::ostream& operator<<(std::ostream& out, const Message& message) {
  return out << message.family << "_" << message.name;
}

}  // namespace dxmd_test
