' What a macro does with the object: members in any case, properties, optional and named parts, errors.
T.Equal C.QTITLE, "QOR Plus"
T.Equal C.qtitle(), "QOR Plus"
T.Equal C.QMajor, 2
T.Equal C.QMinor, 6

T.Equal C.QCurrentTab, 0
C.QCurrentTab = 3
T.Equal C.QCurrentTab, 3
C.QCurrentTab = "4"
T.Equal C.QCurrentTab, 4
C.QHelpFile = "C:\QOR\QOR.chm"
T.Equal C.QHelpFile, "C:\QOR\QOR.chm"
T.Equal TypeName(C.QDoSelectionChange), "Boolean"

T.Equal C.ARNS(100, 300, 1000), 0.2
T.Equal C.arns("100", 300, 1000), 0.2
T.Equal C.ARNS(100, 300, 1000, 0), 0
T.Equal C.ARA(1, 0), 0
T.Equal C.ARA(5, 2, 0), 2
T.Equal C.ARA(7, 2, 0), 4
T.Equal C.ORDINAL(22), "22ND"
T.Equal C.ISLEAPYEAR(2004), True
T.Equal C.EDATEADD("m", 1, DateSerial(2004, 1, 31)), DateSerial(2004, 2, 29)

' A value that a parameter by reference takes goes back to a variable, and to a constant it goes nowhere.
Dim dividend
dividend = 5
T.Equal C.EPS(105, 10, dividend), C.EPS(105, 10, 5)

On Error Resume Next
C.QCurrentTab = "no number"
T.Equal Err.Number, 0
Err.Clear
v = C.NoSuchMember
T.Equal Err.Number, 438
Err.Clear
v = C.ARNS(1, 2, 3, 4, 5)
T.Equal Err.Number, 450
Err.Clear
v = C.ARNS()
T.Equal Err.Number, 449
Err.Clear
v = C.ARNS("no number", 1, 1)
T.Equal Err.Number, 13
Err.Clear
C.QTitle = "mine"
T.Equal Err.Number, 438
Err.Clear
v = C.CELLINFO("A1")
T.Equal Err.Number, 438
Err.Clear
C.UTWorSum Nothing
T.Equal Err.Number, 91
T.Equal Err.Source, "UTWorSum" & Chr(13)
Err.Clear
C.UTWorSum 5
T.Equal Err.Number, 424
Err.Clear
