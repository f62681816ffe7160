frange 1234567 1234568
set -g _HIP_SAVEVERSION = '20.5.370'
out/fg:hero1.parm {
vm_picture	[ 0	locks=0 ]	(	"/r/shot/render/m.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"/r/shot/ifd/m.$F4.ifd"	)
res_override	[ 0	locks=0 ]	(	1920	1080	)
}
