#!/usr/bin/python3
"""Breaks the example of each kind, which its XML Schema must refuse then: misfit_test.py SCHEMAS DXMD."""

import pathlib
import re
import subprocess
import sys

from documents import refused_by_dxmd, refused_by_xmllint


def swap(first, second):
    """Changes the order of two elements that have content."""
    return rf"(<{first}\b.*?</{first}>)(<{second}\b.*?</{second}>)", r"\2\1"


# For each kind, what is replaced in its example by what.

COMMAND = [
    ("<command ", '<command extra="" '),
    (r'<commandID value="[^"]*"/>', ""),
    (' xmlns="[^"]*"', ' xmlns="urn:other"'),
    (r"<commandID", "<commandId"),
    (r"(<commandID.*/>)(<requestID.*/>)", r"\2\1"),
    (r'(<dataSourceType [^>]*/>)(<VAMPassport [^>]*/>)', r"\2\1"),
    (r'<VAMPassport value="[^"]*"', "<VAMPassport"),
    ("</connection>", '<connection><name value=""/><dataSourceType value="other"/></connection></connection>'),
]
DX_COMMAND = COMMAND + [
    ("<source>.*</source>", ""),
    (r"(<source>.*?</source>)(.*?)(</dxCommand>)", r"\2\1\3"),
    ('<property name="[a-zA-Z]+"', '<property name="everything"'),
    ("</dxCommand>", "<queryFeedback/></dxCommand>"),
]

MISFITS = {
    "analyzeModelRequest": [
        swap("objects", "checks"),
        (' id="[^"]*"', ' id=""'),
        (' name="ambiguousCardinality"', ' name="everything"'),
        (' name="doSpecifiedChecks"', ""),
    ],
    "analyzeModelResponse": [
        swap("messages", "relatedObjects"),
        (' status="success"', ' status="done"'),
        (' subtype="measure"', ' subtype="other"'),
        (' refclass="[^"]*"', ""),
    ],
    "cancelQuery": COMMAND + [("<cancel>.*</cancel>", "<cancel/>"), ('value="DXRequest"', 'value="Other"')],
    "closeConnections": COMMAND + [("<closeConnections/>", "<closeConnections>all</closeConnections>")],
    "connection": [
        ('<dataSourceType value="ReportService"/>', ""),
        ('name="RETAINCONNECTION"', 'name="other"'),
        ('value="FALSE"', 'value="false"'),
        (r"(<name [^>]*/>)(<dataSourceType [^>]*/>)", r"\2\1</connection><connection>"),
        ('<password value="[^"]*"', '<password value=""'),
    ],
    "dataSourceFault": [
        swap("faultSubcode", "faultstring"),
        ("<faultcode>", '<faultcode code="">'),
        (r"<faultConnection><name [^>]*/>", "<faultConnection>"),
        ('<type value="OL"/>', "<type/>"),
    ],
    "dbConnections": [
        swap("userName", "password"),
        ("<database>sales</database>", ""),
        ("<database>sales</database>", "<database/>"),
        ("<dbConnections>.*", "<dbConnections/>"),
    ],
    "definitionFile": [
        swap("dbConnectionName", "cmDataSource"),
        ("<line>.*</line>", ""),
        ("<filePath>.*</filePath>", ""),
    ],
    "dimInfo": [
        swap("levels", "hierarchies"),
        (' isUniqueKey="true"', ""),
        (' isUniqueKey="true"', ' isUniqueKey="1"'),
        ("<externalName>Year</externalName>", ""),
        ("<levels>.*</levels>", "<levels/>"),
    ],
    "execute": COMMAND
    + [
        swap("detailFilter", "queryHints"),
        (' sort="ascending"', ' sort="upwards"'),
        (' aggregate="total"', ' aggregate="unknown"'),
        (' use="required"', ""),
        (' autoSummary="true"', ""),
        (' severityLevel="warning"', ' severityLevel="fatal"'),
        ('<executionOptimization value="firstRow"', '<executionOptimization value="lastRow"'),
        (' refQuery="rightQuery"/></queryRefs>', ' refQuery="otherQuery"/></queryRefs>'),
        (r"<joinOperand .*?</joinOperand>", ""),
        ("<reportName>DXRequest", "<reportName>Other"),
        ('<valueSet name="valueSet1"', '<valueSet name="valueSet2"'),
        ("<queries>.*</queries>", "<queries/>"),
        ("<model/>", "<model/><model/>"),
    ],
    "expandParameter": DX_COMMAND + [("<expression>.*</expression>", "")],
    "expansionResult": [("<expansionResult>.*?</", "<expansionResult></"), ("</response>", "<other/></response>")],
    "externalizeReport": [(' objectID="[^"]*"', ""), (' method="[^"]*"', ""), ("<entry", "<Entry")],
    "feedback": [(' class="error"', ""), (' class="error"', ' class="fatal"'), ("<feedback>", "<feedback>text")],
    "getJoinPaths": DX_COMMAND + [("<expression>.*?</expression>", "<expression/>")],
    "getParameters": [(' value="2024"', ""), (' name="Year"', ""), ("<parameters>", "<parameters><other/>")],
    "importConfig": [swap("connection", "capabilities"), (' nameInRequest="[^"]*"', ""), (' value="true"', "")],
    "joinPaths": [("<join>", "<Join>"), ("<joinPath>", '<joinPath extra="">'), ("<response>", "<response>text")],
    "materializeRequest": [
        swap("tasks", "targetDataSource"),
        ("<task>genLoadDataFromFile", "<task>other"),
        (' name="tableName"', ' name="other"'),
        (' value="SALES"', ""),
        ("<targetDataSource.*</targetDataSource>", ""),
        ("<resultSet>.*</resultSet>", "<resultSet/>"),
    ],
    "materializeResponse": [
        swap("genLoadDataFromFile", "loadDataFromFile"),
        ("<response>1200 rows</response>", ""),
        ("<loadDataFromFile>", '<loadDataFromFile extra="">'),
    ],
    "objectAccess": [
        ("<rule>allow", "<rule>perhaps"),
        (' displayPath="[^"]*"', ""),
        (' cmSearchPath="[^"]*"', ' cmSearchPath=""'),
        ("<rule>allow</rule>", ""),
    ],
    "packages": [(' cmSearchPath="[^"]*"', ""), (' defaultName="[^"]*"', ""), ("</packages>", "<file/></packages>")],
    "parameterValueItem": [
        ('xsi:type="bus:hierarchicalParmValueItem"', 'xsi:type="bus:other"'),
        ('xsi:type="bus:hierarchicalParmValueItem"', 'xsi:type="bus:simpleParmValueItem"'),
        ('xsi:type="bus:hierarchicalParmValueItem"', 'xsi:nil="true"'),
        ("<inclusive>true", "<inclusive>1"),
        (r"(<inclusive>true</inclusive>)(<use>[^<]*</use>)", r"\2\1"),
        (' xsi:nil="true"', ""),
    ],
    "querySubject": DX_COMMAND
    + [
        (' type="querySubject"', ""),
        ("<name>aBmtQuerySubject", "<name>Other"),
        ("<definition>.*</definition>", "<definition/>"),
        (r"(<name>.*</name>)(<definition>.*</definition>)", r"\2\1"),
    ],
    "refineObjects": DX_COMMAND + [("<expression>.*?</expression>", "<expression/>")],
    "refinedObjects": [("<expression>.*?</expression>", "<expression/>"), ("<response>", '<response extra="">')],
    "response": [
        swap("columnList", "resultData"),
        ('<property name="nativeCommandText"', '<property name="other"'),
        ('<property name="nativeCommandText"', "<property"),
        ("<column ", '<column size="1" '),
        ('<value v="North"/>', "<value>North</value>"),
        ("<resultData>.*</resultData>", ""),
    ],
    "retargetObjectReferences": [
        (' processDescendants="true"', ""),
        (' processDescendants="true"', ' processDescendants="yes"'),
        (' newRefValue="[^"]*"', ""),
        ("<updateInfo.*</updateInfo>", ""),
    ],
    "securityObjects": [
        swap("displayPath", "cmSearchPath"),
        (' type="group"', ""),
        ("<viewref>.*</viewref>", ""),
        ("<packageref>.*?</packageref>", "<packageref/>"),
    ],
    "testConnection": [
        ("<command>", '<command xmlns="urn:other">'),
        ('value="QueryFrameworkService"', 'value="Other"'),
        ('value="Database"', 'value="Other"'),
        (r"(<username [^>]*/>)(<password [^>]*/>)", r"\2\1"),
        ("<connectionString [^>]*/>", ""),
        ("<testConnection/>", ""),
    ],
    "update": COMMAND + [(' name="[^"]*"', ""), ("<modelPath>.*</modelPath>", ""), ("<updateSet>.*</updateSet>", "")],
    "updateObjectRequest": [
        (' name="addProperty"', ' name="addEverything"'),
        (' name="objectID"', ' name="other"'),
        (' name="removeObject"', ""),
        ("<parameters>.*?</parameters>", ""),
    ],
    "updateObjectResponse": [
        (r"(<error .*</error>)(<feedback>.*</feedback>)", r"\2\1"),
        (' status="failure"', ' status="failed"'),
        (' code="[^"]*"', ""),
        ('<param name="property"', '<param name="caption"'),
    ],
    "validate": COMMAND + [("<validate>", "<validate>text"), ("<validate>.*</validate>", "")],
    "validateReply": [(' severity="error"', ' severity="none"'), ("<message", "<Message"), ("</response>", "text</response>")],
}


def example(dxmd, kind):
    given = subprocess.check_output([dxmd, "example", kind])
    return subprocess.check_output([dxmd, "encode", kind], input=given, text=False).decode().strip()


def main(schemas, dxmd):
    schemas = pathlib.Path(schemas)
    wrong = 0
    for kind in sorted(path.stem for path in schemas.glob("*.xsd")):
        document = example(dxmd, kind)
        broken = {}
        for pattern, replacement in MISFITS[kind]:
            made = re.sub(pattern, replacement, document, count=1, flags=re.DOTALL)
            if made == document:
                print(f"{kind}: {pattern} is not in {document}")
                wrong += 1
            for name in re.findall(r"<([A-Z]\w+)", replacement):  # the end tag of a start tag that was renamed
                made = re.sub(f"</{name}>", f"</{name}>", made, count=1, flags=re.IGNORECASE)
            broken[made] = f"{pattern} -> {replacement}"
        documents = [document, *broken]
        for validator, refused in {
            "xmllint": refused_by_xmllint(schemas, kind, documents),
            "dxmd check": refused_by_dxmd(dxmd, kind, documents),
        }.items():
            if document in refused:
                print(f"{kind}: {validator} refuses the example: {refused[document]}")
                wrong += 1
            for made, change in broken.items():
                if made not in refused:
                    print(f"{kind}: {validator} takes {change}: {made}")
                    wrong += 1
    return 1 if wrong else 0


sys.exit(main(*sys.argv[1:]))
