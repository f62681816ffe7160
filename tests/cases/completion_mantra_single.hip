set -g _HIP_SAVEVERSION = '19.5.303'
out/ms.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/ms.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/ms_all.mov"	)
}
