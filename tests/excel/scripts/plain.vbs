' For cscript itself, with nothing of the tests in it.
Set C = CreateObject("QORPlus.CCom")
WScript.Echo C.QTitle & " " & C.QMajor & "." & C.QMinor
WScript.Echo C.ORDINAL(22)
On Error Resume Next
C.NoSuchMember
WScript.Echo Err.Number
