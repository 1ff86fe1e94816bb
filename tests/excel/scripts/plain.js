// For cscript itself, with nothing of the tests in it.
var C = new ActiveXObject("QORPlus.CCom");
WScript.Echo(C.QTitle + " " + C.ARNS(100, 300, 1000));
