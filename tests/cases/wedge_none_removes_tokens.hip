set -g _HIP_SAVEVERSION = '19.5.303'
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/v$WEDGENUM/$OS.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/v$WEDGENUM/$OS.$F4.ifd"	)
}
