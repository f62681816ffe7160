set -g _HIP_SAVEVERSION = '19.5.303'
out/u_on.parm {
outputimage	[ 0	locks=0 ]	(	"$HIP/render/on.$F4.exr"	)
lopoutput	[ 0	locks=0 ]	(	"$HIP/usd/on.usd"	)
fileperframe	[ 0	locks=0 ]	(	"on"	)
}
