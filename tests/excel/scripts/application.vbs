' The host's Application is any object that answers its members by name.
T.Equal C.QSaveSetting("Tests", "a", "1"), True
T.Equal C.QGetSetting("Tests", "a", "2"), "1"
T.Equal C.QGetSetting("Tests", "b", "2"), "2"

C.QHelpFile = "C:\QOR\QOR.chm"
C.QOpenHelp Application
T.Equal Application.HelpFile, "C:\QOR\QOR.chm"

C.QSetupFunc Application
T.Equal Application.Registered, 207

C.UTSavAll Application
T.Equal Application.Saved, 2

On Error Resume Next
Application.Refuse = 3
C.UTSavAll Application
T.Equal Err.Number, 1004
T.Equal Left(Err.Source, 9), "UTSavAll" & Chr(13)
Err.Clear
Application.Refuse = 0

C.UTWorSum Application
T.Equal Err.Number, 445
T.Equal Err.Description, "The dialog frmWKSum cannot be shown: this build for Excel draws no dialogs."
Err.Clear
