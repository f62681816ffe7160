set -g JOB = '/proj/shot'
SET -G job = "a b"
Houdini set -g X = ' v '
set -g EMPTY = ''
set -g ONE = x
set -g A = 'b = c'
set -g   SPACED   =   'v'
echo set -g NOTVAR = 'x'
set -g NOSPACE='x'
set -gGLUED = 'x'
sopflags sopflags = 
Hou = 'w' set -g BACK
out/show.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/v/$JOB/$X/$A/$SPACED/$BACK/$NOTVAR$NOSPACE$GLUED/e$EMPTY$ONE.$F4.exr"	)
}
