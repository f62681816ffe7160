set -g _HIP_SAVEVERSION = '19.5.303'
obj/cam1.parm {
res	[ 0	locks=0 ]	(	1280	720	)
}
out/c_plain.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/p.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam1	)
}
out/c_chref.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/r.$F4.exr"	)
camera	[ 0	locks=0 ]	(	[ camera	/obj/cam1 ]	)
}
out/c_expr.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/e.$F4.exr"	)
camera	[ 0	locks=0 ]	(	`chsop(cam)`	)
}
out/c_chs.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/c.$F4.exr"	)
camera	[ 0	locks=0 ]	(	`chs("../camsel")`	)
}
out/c_proxy.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/x.$F4.exr"	)
camera	[ 0	locks=0 ]	(	proxy_export_cam1	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/x.$F4.ifd"	)
}
out/c_late.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/l.$F4.exr"	)
camera	[ 0	locks=0 ]	(	/obj/cam_late	)
}
obj/cam_late.parm {
res	[ 0	locks=0 ]	(	640	360	)
}
