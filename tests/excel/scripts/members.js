// The same object from a language of another kind: properties, calls and errors.
T.Equal(C.QTitle, "QOR Plus");
T.Equal(C.qTITLE, "QOR Plus");
C.QTargetAddress = "$A$1";
T.Equal(C.QTargetAddress, "$A$1");
T.Equal(C.ARNS(100, 300, 1000), 0.2);
T.Equal(C.ARNS(100, 300, 1000, 0), 0);
T.Equal(C.NUMBERTOWORDS(21), C.numbertowords("21"));
T.Equal(C.BETWEEN(5, 1, 10), true);

function number(call) {
    try {
        call();
    } catch (error) {
        return error.number & 0xFFFF;
    }
    return 0;
}

T.Equal(number(function () { return C.NoSuchMember(); }), 438);
T.Equal(number(function () { return C.ARNS(1, 2, 3, 4, 5); }), 450);
T.Equal(number(function () { return C.ARNS(); }), 449);
T.Equal(number(function () { return C.ARNS("no number", 1, 1); }), 13);
T.Equal(number(function () { C.UTWorSum(5); }), 424);
